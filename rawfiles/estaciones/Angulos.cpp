#include "rawfiles/estaciones/Angulos.h"

#include "rawfiles/estaciones/Disposicion.h"
#include "rawfiles/estaciones/Redondeo.h"

namespace {

enum Columna { PUNTO, HORIZONTAL, VERTICAL, DISTANCIA, PRISMA, CODIGO };

class Lector_Angulos : public Lector_Disposicion {
public:
    Lector_Angulos() { celdas.resize(6); }

    bool Tomar(const Registro_Serie_B& r) override
    {
        if (r.Es_Visado()) {
            celdas[PUNTO] = r.Dato(1);
            celdas[PRISMA] = r.Dato(2);
            celdas[CODIGO] = r.Dato(3);
        } else if (r.clave == u"SD") {
            celdas[HORIZONTAL] = Redondeo::Redondear(r.Dato(1), 4);
            celdas[VERTICAL] = Redondeo::Redondear(r.Dato(2), 4);
            celdas[DISTANCIA] = Redondeo::Redondear(r.Dato(3), 3);
            return true;
        }
        return false;
    }
};

} // namespace

QString Fallo_Angulos()
{
    return QStringLiteral("Se produjo un error al Exportar a Angulos y Distancias");
}

bool Exportar_Angulos(qint64 id, const QString& ruta)
{
    static const Disposicion angulos{
        [] { return std::unique_ptr<Lector_Disposicion>(new Lector_Angulos); }, Unir_Celdas,
        QStringLiteral("Exportación a Formato Angulos y Distancias finalizada"), Fallo_Angulos()};
    return Exportar_Disposicion(angulos, id, ruta);
}
