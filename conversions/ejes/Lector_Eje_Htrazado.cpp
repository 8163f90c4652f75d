#include "conversions/ejes/Geometria_Eje.h"
#include "conversions/ejes/Lectores_Eje.h"
#include "core/Ansi.h"

#include <cmath>

using namespace Campos_Fuente;
using namespace Geometria_Eje;

namespace {

/// Reads the lines of one axis; each routine of a keyword returns why its line is left out.
class Traza {
public:
    Eje eje;

    bool Acabada() const { return acabada; }
    bool Hay_Elementos() const { return !eje.elementos.empty(); }

    QString Linea(QByteArrayView linea)
    {
        struct Orden {
            const char* palabra;
            QString (Traza::*leer)(const Lista&);
        };
        static constexpr Orden ORDENES[] = {
            {"ANGULOS", &Traza::Angulos}, {"PK", &Traza::Inicio_PK}, {"INICIO", &Traza::Inicio},
            {"RECTA", &Traza::Recta},     {"CURVA", &Traza::Curva},  {"CLOTOIDE", &Traza::Clotoide},
        };
        const Lista campos = Por_Blancos(linea);
        if (Iguales(campos[0], "EJE")) return Nombre(linea);
        if (Iguales(campos[0], "FIN")) {
            acabada = true;
            return {};
        }
        for (const Orden& o : ORDENES)
            if (Iguales(campos[0], o.palabra)) return (this->*o.leer)(campos);
        return QStringLiteral("Palabra desconocida, la línea se omite");
    }

    void Cerrar()
    {
        eje.fin = actual.punto;
        eje.azimut_fin = actual.azimut;
    }

private:
    Situacion actual;
    bool sexagesimal = false, situada = false, acabada = false;

    static QString Ilegible() { return QStringLiteral("Número ilegible, la línea se omite"); }
    static QString Imposible() { return QStringLiteral("Elemento imposible, la línea se omite"); }

    std::optional<double> Angulo(QByteArrayView campo) const
    {
        const auto gon = sexagesimal ? Sexagesimal_A_Gon(campo) : Numero(campo);
        return gon ? std::optional(*gon * GON) : std::nullopt;
    }

    /// A second axis begins: what comes now isn't read.
    bool Otra()
    {
        acabada = Hay_Elementos();
        return acabada;
    }

    QString Nombre(QByteArrayView linea)
    {
        if (!Otra()) eje.nombre = Ansi::A_Texto(Recortar(Recortar(linea).sliced(3)));
        return {};
    }

    QString Angulos(const Lista& campos)
    {
        if (campos.size() < 2) return QStringLiteral("Falta la clase de ángulos");
        if (Iguales(campos[1], "SEXAGESIMAL")) {
            sexagesimal = true;
        } else if (Iguales(campos[1], "CENTESIMAL")) {
            sexagesimal = false;
        } else {
            return QStringLiteral("Clase de ángulos desconocida, la línea se omite");
        }
        return {};
    }

    QString Inicio_PK(const Lista& campos)
    {
        const auto pk = campos.size() > 1 ? Numero_PK(campos[1]) : std::nullopt;
        if (!pk) return Ilegible();
        if (Hay_Elementos()) return QStringLiteral("P.K. detrás de un elemento, se omite");
        eje.pk_inicio = *pk;
        return {};
    }

    QString Inicio(const Lista& campos)
    {
        if (Otra()) return {};
        Situacion s;
        if (campos.size() < 4 || !Numeros(campos, 1, {&s.punto.x, &s.punto.y})) return Ilegible();
        const auto azimut = Angulo(campos[3]);
        if (!azimut) return Ilegible();
        s.azimut = *azimut;
        actual = s;
        situada = true;
        return {};
    }

    QString Recta(const Lista& campos)
    {
        double longitud = 0;
        if (campos.size() < 2 || !Numeros(campos, 1, {&longitud})) return Ilegible();
        if (longitud <= 0) return Imposible();
        return Anadir(Clase_Elemento::Recta, longitud, 0, 0, 0);
    }

    QString Curva(const Lista& campos)
    {
        double radio = 0;
        const auto giro = campos.size() > 2 ? Angulo(campos[2]) : std::nullopt;
        if (!giro || !Numeros(campos, 1, {&radio})) return Ilegible();
        const double k = Curvatura(radio);
        if (k == 0 || *giro <= 0) return Imposible();
        return Anadir(Clase_Elemento::Arco, std::abs(radio) * *giro, k, k, 0);
    }

    QString Clotoide(const Lista& campos)
    {
        double A = 0, r1 = 0, r2 = 0;
        if (campos.size() < 4 || !Numeros(campos, 1, {&A, &r1, &r2})) return Ilegible();
        const double k1 = Curvatura(r1), k2 = Curvatura(r2);
        if (A < RADIO_MINIMO || k1 == k2 || k1 * k2 < 0) return Imposible();
        return Anadir(Clase_Elemento::Clotoide, A * A * std::abs(k2 - k1), k1, k2, A);
    }

    QString Anadir(Clase_Elemento clase, double longitud, double k1, double k2, double A)
    {
        if (!situada)
            throw Fallo_Conversion{QStringLiteral("Hay un elemento antes de INICIO"), 0, {}};
        if (longitud < LONGITUD_MINIMA) return {};
        eje.elementos.push_back({clase, actual.punto, actual.azimut, longitud, k1, k2, A});
        actual = Final(eje.elementos.back());
        return {};
    }
};

} // namespace

Eje Leer_Eje_Htrazado(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    Traza traza;
    while (!traza.Acabada() && fuente.Siguiente()) {
        const QByteArrayView linea = Recortar(fuente.Linea());
        if (linea.startsWith('*') || linea.startsWith(';') || linea.startsWith('#')) continue;
        const QString defecto = traza.Linea(linea);
        if (!defecto.isEmpty()) fuente.Omitir(informe, defecto);
    }
    if (!traza.Hay_Elementos())
        throw Fallo_Conversion{QStringLiteral("No hay ningún elemento de alineación"), 0, {}};
    traza.Cerrar();
    return traza.eje;
}
