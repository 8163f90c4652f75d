#include "rawfiles/estaciones/Desplazamientos.h"

#include "rawfiles/estaciones/Angulos.h"
#include "rawfiles/estaciones/Disposicion.h"
#include "rawfiles/estaciones/Redondeo.h"

#include <cmath>

namespace {

enum Columna { CLASE, NUMERO, NOMBRE, HORIZONTAL, VERTICAL, DISTANCIA, PRISMA, PRISMA_2, OFFSET };

const QString ESTACION = QStringLiteral("S");

// The file's own constant, not a better one.
constexpr double PI = 3.1416;

QString Formato_Punto(double numero, const QString& dibujo)
{
    return Basico::Formato(numero, dibujo).replace(u',', u'.');
}

class Lector_Desplazamientos : public Lector_Disposicion {
public:
    Lector_Desplazamientos() { celdas.resize(9); }

    bool Tomar(const Registro_Serie_B& r) override
    {
        if (r.clave == u"STN") {
            celdas[CLASE] = ESTACION;
            celdas[NOMBRE] = r.Dato(1);
            celdas[HORIZONTAL] = r.Dato(2);
            return true;
        }
        if (r.Es_Visado()) Tomar_Visado(r);
        if (r.clave != u"SD") return false;
        Tomar_Observacion(r);
        return true;
    }

private:
    void Tomar_Visado(const Registro_Serie_B& r)
    {
        const QString punto = r.Dato(1);
        const bool numero = Redondeo::Es_Numero(punto);
        celdas[CLASE] = numero ? QStringLiteral("P") : QStringLiteral("E");
        celdas[NUMERO] = numero ? punto : QString();
        celdas[NOMBRE] = numero ? QString() : punto;
        celdas[PRISMA] = celdas[PRISMA_2] = r.Dato(2);
    }

    void Tomar_Observacion(const Registro_Serie_B& r)
    {
        celdas[HORIZONTAL] = Redondeo::Redondear(r.Dato(1), 4);
        celdas[VERTICAL] = Redondeo::Redondear(r.Dato(2), 4);
        const QString distancia = r.Dato(3);
        // An offset of a distance or an angle that isn't there would be a false 0.
        if (!Redondeo::Es_Numero(distancia) || !Redondeo::Es_Numero(celdas[VERTICAL])) {
            celdas[DISTANCIA] = celdas[OFFSET] = QString();
            return;
        }
        // The sine twice is the file's own rule: first of the angle as it stands, in gon, then of
        // the angle in radians.
        const double angulo = Basico::Val(celdas[VERTICAL]);
        celdas[DISTANCIA] =
            Basico::Texto_Numero(Basico::Val(distancia) * std::sin(angulo)).replace(u',', u'.');
        celdas[OFFSET] = Formato_Punto(Basico::Val(celdas[DISTANCIA]) * std::sin(angulo * PI / 200),
                                       QStringLiteral("##0.000"));
    }
};

QString Linea_De(const Celdas& celdas, const QString& separador)
{
    Celdas c = celdas;
    const auto suplir = [&](Columna columna, const QString& valor) {
        if (Basico::Trim(c[columna]).isEmpty()) c[columna] = valor;
    };
    if (Basico::Trim(c[CLASE]) == ESTACION) {
        suplir(VERTICAL, QStringLiteral(" 0.0000"));
        suplir(PRISMA_2, QStringLiteral("0.000"));
        suplir(OFFSET, QStringLiteral("0.000"));
    }
    return Unir_Celdas(
        {c[CLASE], c[NOMBRE], c[NUMERO], c[HORIZONTAL], c[VERTICAL], c[OFFSET], c[PRISMA_2]},
        separador + QStringLiteral("    "));
}

} // namespace

bool Exportar_Desplazamientos(qint64 id, const QString& ruta)
{
    static const Disposicion desplazamientos{
        [] { return std::unique_ptr<Lector_Disposicion>(new Lector_Desplazamientos); }, Linea_De,
        QStringLiteral("Exportación a Formato Desplazamientos en Bruto Finalizada"),
        Fallo_Angulos()};
    return Exportar_Disposicion(desplazamientos, id, ruta);
}
