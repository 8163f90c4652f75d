#include "rawfiles/estaciones/Bronex.h"

#include "rawfiles/estaciones/Redondeo.h"

namespace {

enum Columna { ESTACION, PUNTO, HORIZONTAL, VERTICAL, DISTANCIA, PRISMA, INSTRUMENTO };

} // namespace

bool Lector_Bronex::Tomar(const Registro_Serie_B& r)
{
    if (r.clave == u"STN") {
        celdas[ESTACION] = r.Dato(1);
        celdas[INSTRUMENTO] = r.Dato(2);
    } else if (r.Es_Visado()) {
        celdas[PUNTO] = r.Dato(1);
        celdas[PRISMA] = r.Dato(2);
    } else if (r.clave == u"SD") {
        celdas[HORIZONTAL] = Redondeo::Redondear(r.Dato(1), 4);
        celdas[VERTICAL] = Redondeo::Redondear(r.Dato(2), 4);
        celdas[DISTANCIA] = Redondeo::Redondear(r.Dato(3), 3);
        return true;
    }
    return false;
}

QString Fallo_Bronex()
{
    return QStringLiteral("Se produjo un error al Exportar a Bronex");
}

bool Exportar_Bronex(qint64 id, const QString& ruta)
{
    static const Disposicion bronex{
        [] { return std::unique_ptr<Lector_Disposicion>(new Lector_Bronex); }, Unir_Celdas,
        QStringLiteral("Exportación a Formato Bronex finalizada"), Fallo_Bronex()};
    return Exportar_Disposicion(bronex, id, ruta);
}
