#pragma once

#include <cmath>
#include <numbers>
#include <QByteArray>
#include <QRandomGenerator>
#include <vector>

/// Roads made by a program, and the writing of them in every source layout. It shares nothing with
/// the library: its points come from its own integration (Simpson's rule), so that the two check
/// each other.
namespace Camino_Azar {

inline constexpr double GON = std::numbers::pi / 200;

/// An element as the source sees it; x = east, y = north, right-hand curvature positive.
struct Elemento {
    char clase; ///< R straight, C arc, K clothoid
    double pk, x, y, azimut, longitud, k1, k2;

    double Radio() const { return k1 == 0 ? 0 : 1 / k1; }
    double A() const { return clase == 'K' ? std::sqrt(longitud / std::abs(k2 - k1)) : 0; }
};

struct Punto {
    double x, y, azimut;
};

/// The road: elements, and behind them the end.
struct Camino {
    std::vector<Elemento> elementos;
    double pk_fin = 0;
    Punto fin{};
};

/// Point and azimuth at `s` metres behind the start of `e`; `pasos` of the integration, even.
inline Punto En(const Elemento& e, double s, int pasos = 400)
{
    const auto azimut = [&](double t) {
        return e.azimut + e.k1 * t + (e.k2 - e.k1) * t * t / (2 * e.longitud);
    };
    const double h = s / pasos;
    double x = 0, y = 0;
    for (int i = 0; i <= pasos; ++i) {
        const double peso = i == 0 || i == pasos ? 1 : i % 2 ? 4 : 2;
        x += peso * std::sin(azimut(i * h));
        y += peso * std::cos(azimut(i * h));
    }
    return {e.x + x * h / 3, e.y + y * h / 3, azimut(s)};
}

/// What a road is made of: plain curves, or with clothoids that meet without an arc, whose
/// curvature only sources with the parameter tell.
enum class Clase { Corriente, Con_Puntas };

/// Makes a road whose elements follow each other without corners. Radii are whole metres.
class Constructor {
public:
    Constructor(quint32 semilla, Clase con) : azar(semilla), clase(con)
    {
        x = 200000 + azar.bounded(600000.0);
        y = 4000000 + azar.bounded(800000.0);
        azimut = azar.bounded(400.0) * GON;
        pk = azar.bounded(2) ? 0 : azar.bounded(20000.0);
    }

    Camino Hacer(int tramos)
    {
        for (int i = 0; i < tramos; ++i) {
            switch (azar.bounded(clase == Clase::Con_Puntas ? 6 : 5)) {
            case 0:
                Anadir('R', 20 + azar.bounded(280.0), 0, 0);
                break;
            case 1: // arc against whatever stands before, without transition
                // A straight parts it from a clothoid, whose end would take the arc's curvature.
                Anadir('R', 5 + azar.bounded(80.0), 0, 0);
                Arco(Curvatura());
                Anadir('R', 20 + azar.bounded(80.0), 0, 0);
                break;
            case 2: // entry, arc, exit
                Curva(Curvatura());
                break;
            case 3: { // S: two of them, back to back
                const double k = Curvatura();
                Curva(k);
                Curva(-std::copysign(std::abs(Curvatura()), k));
                break;
            }
            case 4: { // egg: arcs of one side joined by a clothoid
                const double k = Curvatura();
                const double k2 = std::copysign(1.0 / (30 + azar.bounded(60)), k);
                const double k1 = std::copysign(1.0 / (200 + azar.bounded(400)), k);
                Clotoide(0, k1);
                Arco(k1);
                Clotoide(k1, k2);
                Arco(k2);
                Clotoide(k2, 0);
                break;
            }
            default: { // peak: two clothoids without an arc between them
                const double k = Curvatura();
                Anadir('R', 30, 0, 0);
                Clotoide(0, k);
                Clotoide(k, 0);
                Anadir('R', 30, 0, 0);
            }
            }
        }
        camino.pk_fin = pk;
        camino.fin = {x, y, azimut};
        return camino;
    }

private:
    QRandomGenerator azar;
    Clase clase;
    Camino camino;
    double x, y, azimut, pk;

    double Curvatura()
    {
        const double radio = 40 + azar.bounded(960);
        return azar.bounded(2) ? 1 / radio : -1 / radio;
    }
    void Anadir(char tipo, double longitud, double k1, double k2)
    {
        const Elemento e{tipo, pk, x, y, azimut, longitud, k1, k2};
        camino.elementos.push_back(e);
        const Punto p = En(e, longitud);
        x = p.x;
        y = p.y;
        azimut = p.azimut;
        pk += longitud;
    }
    /// Elements are short enough for the azimuths that the forms round to 0.0001 gon.
    static constexpr double LONGITUD_MAXIMA = 300;

    void Arco(double k)
    {
        Anadir('C', std::min((0.1 + azar.bounded(1.4)) / std::abs(k), LONGITUD_MAXIMA), k, k);
    }
    void Clotoide(double k1, double k2)
    {
        Anadir('K', (0.05 + azar.bounded(0.35)) / std::max(std::abs(k1), std::abs(k2)), k1, k2);
    }
    void Curva(double k)
    {
        Clotoide(0, k);
        Arco(k);
        Clotoide(k, 0);
    }
};

inline QByteArray N(double x, int decimales = 6)
{
    return QByteArray::number(x, 'f', decimales);
}

inline double En_Gon(double azimut)
{
    const double gon = std::fmod(azimut / GON, 400);
    return gon < 0 ? gon + 400 : gon;
}

inline QByteArray Qsv(const Camino& c)
{
    QByteArray s = "* PK X Y AZIMUT RADIO PARAMETRO LONGITUD\r\n";
    for (const Elemento& e : c.elementos) {
        // The radius of a clothoid's row is nobody's: it must not be used.
        const QByteArray radio = e.clase == 'C' ? N(e.Radio()) : e.clase == 'K' ? "777.0" : "0";
        s += N(e.pk) + ' ' + N(e.x) + ' ' + N(e.y) + ' ' + N(En_Gon(e.azimut), 9) + ' ' + radio +
             ' ' + N(e.A()) + ' ' + N(e.longitud) + "\r\n";
    }
    return s + N(c.pk_fin) + ' ' + N(c.fin.x) + ' ' + N(c.fin.y) + ' ' +
           N(En_Gon(c.fin.azimut), 9) + " 0 0 0\r\n";
}

inline QByteArray Istram(const Camino& c)
{
    QByteArray s;
    int dato = 0;
    for (const Elemento& e : c.elementos) {
        const QByteArray palabra = e.clase == 'R' ? "RECTA" : e.clase == 'C' ? "CIRC." : "CLOT.";
        if (e.clase != 'K') s += "  " + QByteArray::number(++dato);
        s += "  " + palabra + ' ' + N(e.longitud) + ' ' + N(e.pk) + ' ' + N(e.x) + ' ' + N(e.y);
        if (e.clase == 'C') s += ' ' + N(e.Radio());
        if (e.clase == 'K') s += ' ' + N(e.A());
        s += ' ' + N(En_Gon(e.azimut), 9) + " 0.1 0.2\r\n";
    }
    return s + N(c.pk_fin) + ' ' + N(c.fin.x) + ' ' + N(c.fin.y) + ' ' +
           N(En_Gon(c.fin.azimut), 9) + "\r\n";
}

inline QByteArray Ispol(const Camino& c)
{
    QByteArray s;
    int n = 0;
    for (const Elemento& e : c.elementos) {
        static const QList<QByteArray> PALABRAS[] = {
            {"RECTA", "R", "1"}, {"CURVA", "circ.", "C", "2"}, {"CLOT.", "CLOTOIDE", "K", "3"}};
        const auto& palabras = PALABRAS[e.clase == 'R' ? 0 : e.clase == 'C' ? 1 : 2];
        s += N(e.pk) + '\t' + N(e.x) + ' ' + N(e.y) + ' ' + N(En_Gon(e.azimut), 9) + ' ' +
             palabras[n++ == 0 ? 0 : n % palabras.size()] + ' ' +
             N(e.clase == 'C' ? e.Radio() : 0) + ' ' + N(e.longitud) + "\r\n";
    }
    return s + N(c.pk_fin) + ' ' + N(c.fin.x) + ' ' + N(c.fin.y) + ' ' +
           N(En_Gon(c.fin.azimut), 9) + " RECTA 0 0\r\n";
}

/// Packed sexagesimal degrees.
inline QByteArray Empaquetar(double radianes)
{
    const double segundos = radianes * 180 / std::numbers::pi * 3600;
    // Cut into places as a whole number of 1e-7 seconds, so that no place comes out as 60.
    const qint64 n = qint64(std::llround(segundos * 1e7));
    const qint64 resto = n % 36000000000;
    return QByteArray::number(n / 36000000000) + '.' +
           QByteArray::number(resto / 600000000).rightJustified(2, '0') +
           QByteArray::number(resto % 600000000).rightJustified(9, '0');
}

inline QByteArray Htrazado(const Camino& c, bool sexagesimal)
{
    const auto angulo = [&](double rad) { return sexagesimal ? Empaquetar(rad) : N(rad / GON, 9); };
    const Elemento& primero = c.elementos.front();
    QByteArray s = "EJE AZAR\r\nANGULOS ";
    s += sexagesimal ? "SEXAGESIMAL\r\n" : "CENTESIMAL\r\n";
    s += "PK " + N(primero.pk) + "\r\nINICIO " + N(primero.x) + ' ' + N(primero.y) + ' ' +
         angulo(En_Gon(primero.azimut) * GON) + "\r\n";
    const auto radio = [](double k) { return k == 0 ? QByteArray("0") : N(1 / k); };
    for (const Elemento& e : c.elementos) {
        if (e.clase == 'R') s += "RECTA " + N(e.longitud);
        if (e.clase == 'C') s += "CURVA " + radio(e.k1) + ' ' + angulo(e.longitud * std::abs(e.k1));
        if (e.clase == 'K') s += "CLOTOIDE " + N(e.A(), 9) + ' ' + radio(e.k1) + ' ' + radio(e.k2);
        s += "\r\n";
    }
    return s + "FIN\r\n";
}

inline QByteArray Mxroad(const Camino& c, bool doble)
{
    const auto num = [&](double x, int decimales = 3) {
        if (!doble) return QByteArray::number(x, 'f', decimales).rightJustified(12);
        return QByteArray::number(x, 'e', 15).replace('e', 'D').rightJustified(23);
    };
    QByteArray s = "GENIO AZAR\r\n001FORMAT";
    s += doble ? "(3D23.17/3D23.17/2D23.17,4A4)\r\n"
               : "(3F12.3/F12.3,F12.9,F12.3/F12.9,F12.9,4A4)\r\n";
    s += "003,ORDR,4=1,1,2,3,4,5,6\r\n080,MC10,7=12\r\n";
    const auto punto = [&](double x, double y, double pk, double azimut, double radio,
                           const char* codigo) {
        s += num(x) + num(y) + num(0) + "\r\n" + num(pk) + num(azimut, 9) + num(radio) + "\r\n" +
             num(0, 9) + num(0, 9) + QByteArray(codigo).leftJustified(16) + "\r\n";
    };
    for (const Elemento& e : c.elementos)
        punto(e.x, e.y, e.pk, En_Gon(e.azimut) * GON, e.clase == 'C' ? e.Radio() : 999999.999,
              e.clase == 'K'   ? "TS"
              : e.clase == 'C' ? "TC"
                               : "T");
    punto(c.fin.x, c.fin.y, c.pk_fin, En_Gon(c.fin.azimut) * GON, 999999.999, "T");
    return s + num(0) + num(0) + num(0) + "\r\n" + num(0) + num(0) + num(0) + "\r\n" + num(0) +
           num(0) + "\r\n999\r\nFINISH\r\n";
}

/// @param prefijo  of the namespace, with its colon; may be empty
/// @param unidad   metres in the unit that `linear` names
inline QByteArray LandXML(const Camino& c, const QByteArray& prefijo, const QByteArray& linear,
                          double unidad, bool con_referencias)
{
    QByteArray puntos, s;
    int n = 0;
    const auto par = [&](double x, double y) {
        return N(y / unidad, 9) + "\r\n\t " + N(x / unidad, 9);
    };
    const auto hoja = [&](const char* nombre, double x, double y) {
        const QByteArray etiqueta = prefijo + nombre;
        if (con_referencias && ++n % 3 == 0) {
            const QByteArray pto = "P" + QByteArray::number(n);
            puntos += '<' + prefijo + "CgPoint name=\"" + pto + "\">" + par(x, y) + " 1.5</" +
                      prefijo + "CgPoint>";
            s += '<' + etiqueta + " pntRef=\"" + pto + "\"/>";
        } else {
            s += '<' + etiqueta + '>' + par(x, y) + "</" + etiqueta + '>';
        }
    };
    for (size_t i = 0; i < c.elementos.size(); ++i) {
        const Elemento& e = c.elementos[i];
        const bool ultimo = i + 1 == c.elementos.size();
        const Punto fin =
            ultimo ? c.fin
                   : Punto{c.elementos[i + 1].x, c.elementos[i + 1].y, c.elementos[i + 1].azimut};
        const auto radio = [&](double k) {
            return k == 0 ? QByteArray("INF") : N(std::abs(1 / k) / unidad, 9);
        };
        const QByteArray giro = e.k1 + e.k2 < 0 ? " rot=\"ccw\"" : " rot=\"cw\"";
        const QByteArray nombre = prefijo + (e.clase == 'R'   ? "Line"
                                             : e.clase == 'C' ? "Curve"
                                                              : "Spiral");
        s += '<' + nombre;
        if (e.clase != 'R') s += giro;
        if (e.clase == 'K')
            s += " spiType=\"clothoid\" length=\"" + N(e.longitud / unidad, 9) +
                 "\" radiusStart=\"" + radio(e.k1) + "\" radiusEnd=\"" + radio(e.k2) + '"';
        s += '>';
        hoja("Start", e.x, e.y);
        if (e.clase == 'C')
            hoja("Center", e.x + std::cos(e.azimut) / e.k1, e.y - std::sin(e.azimut) / e.k1);
        if (e.clase == 'K') {
            const double giro_total = (e.k1 + e.k2) / 2 * e.longitud;
            const double dx = fin.x - e.x, dy = fin.y - e.y, af = e.azimut + giro_total;
            const double t = (dy * std::sin(af) - dx * std::cos(af)) / std::sin(giro_total);
            hoja("PI", e.x + t * std::sin(e.azimut), e.y + t * std::cos(e.azimut));
        }
        hoja("End", fin.x, fin.y);
        s += "</" + nombre + ">\r\n";
    }
    const QByteArray espacio = prefijo.isEmpty() ? "xmlns" : "xmlns:" + prefijo.chopped(1);
    const auto dentro = [&](const char* nombre, const QByteArray& texto,
                            const QByteArray& mas = {}) {
        return '<' + prefijo + nombre + mas + '>' + texto + "</" + prefijo + nombre + '>';
    };
    return "<?xml version=\"1.0\"?>\r\n" +
           dentro(
               "LandXML",
               dentro("Units", '<' + prefijo + "Metric linearUnit=\"" + linear + "\"/>") +
                   dentro("Alignments", dentro("Alignment", dentro("CoordGeom", s),
                                               " name=\"AZAR\" staStart=\"" +
                                                   N(c.elementos.front().pk / unidad, 9) + '"')) +
                   dentro("CgPoints", puntos),
               ' ' + espacio + "=\"http://www.landxml.org/schema/LandXML-2.0\"");
}

} // namespace Camino_Azar
