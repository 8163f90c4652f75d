#include "conversions/landxml/Escritor_LandXML.h"

#include "conversions/ejes/Geometria_Eje.h"
#include "conversions/suelo/Cifras.h"
#include "conversions/suelo/Informe_Lectura.h"

#include <algorithm>
#include <cmath>

using namespace Geometria_Eje;

namespace {

constexpr int DECIMALES = 4;

QByteArray Num(double x)
{
    return Cifras::Fijo(x, DECIMALES);
}
QByteArray Par(double a, double b)
{
    return Num(a) + ' ' + Num(b);
}
QByteArray Norte_Este(Punto_Plano p)
{
    return Par(p.y, p.x);
}

/// Text of an attribute. XML has no way to hold the other control characters.
QByteArray Escapar(const QString& texto)
{
    QString limpio = texto;
    for (QChar& c : limpio)
        if (c < u' ' || c == QChar(0xFFFE) || c == QChar(0xFFFF)) c = u' ';
    return limpio.toHtmlEscaped().toUtf8();
}

/// Builds the file: each line indented by its depth.
class Documento {
public:
    explicit Documento(const QDateTime& momento)
    {
        Linea("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        Abrir(
            "LandXML xmlns=\"http://www.landxml.org/schema/LandXML-1.2\" version=\"1.2\" date=\"" +
            momento.toString(u"yyyy-MM-dd").toLatin1() + "\" time=\"" +
            momento.toString(u"HH:mm:ss").toLatin1() + '"');
        Abrir("Units");
        Linea("<Metric areaUnit=\"squareMeter\" linearUnit=\"meter\" volumeUnit=\"cubicMeter\" "
              "temperatureUnit=\"celsius\" pressureUnit=\"HPA\" angularUnit=\"grads\" "
              "directionUnit=\"grads\"/>");
        Cerrar();
        Linea("<Application name=\"Miraldos\"/>");
        Abrir("Alignments");
    }

    void Alineacion(const QString& nombre, double longitud, double inicio)
    {
        Abrir("Alignment name=\"" + Escapar(nombre) + "\" length=\"" + Num(longitud) +
              "\" staStart=\"" + Num(inicio) + '"');
    }
    void Linea(const QByteArray& texto)
    {
        bytes += QByteArray(2 * abiertos.size(), ' ') + texto + "\r\n";
    }
    /// @param elemento  name and attributes
    void Abrir(const QByteArray& elemento)
    {
        Linea('<' + elemento + '>');
        abiertos << elemento.split(' ').constFirst();
    }
    void Cerrar()
    {
        const QByteArray elemento = abiertos.takeLast();
        Linea("</" + elemento + '>');
    }
    void Hoja(const QByteArray& nombre, const QByteArray& texto, const QByteArray& atributos = {})
    {
        Linea('<' + nombre + atributos + '>' + texto + "</" + nombre + '>');
    }
    QByteArray Acabar()
    {
        while (!abiertos.isEmpty())
            Cerrar();
        return bytes;
    }

private:
    QByteArray bytes;
    QList<QByteArray> abiertos;
};

QByteArray Radio(double k)
{
    return k == 0 ? QByteArray("INF") : Num(std::abs(1 / k));
}

QByteArray Giro_De(const Elemento_Eje& e)
{
    return e.k1 + e.k2 < 0 ? QByteArray("rot=\"ccw\"") : QByteArray("rot=\"cw\"");
}

void Elemento(Documento& d, const Elemento_Eje& e, double pk, Punto_Plano fin)
{
    const QByteArray longitud = "length=\"" + Num(e.longitud) + '"';
    const QByteArray inicio = " staStart=\"" + Num(pk) + '"';
    switch (e.clase) {
    case Clase_Elemento::Recta:
        d.Abrir("Line " + longitud + inicio);
        d.Hoja("Start", Norte_Este(e.inicio));
        break;
    case Clase_Elemento::Arco:
        d.Abrir("Curve " + Giro_De(e) + ' ' + longitud + " radius=\"" + Radio(e.k1) + '"' + inicio);
        d.Hoja("Start", Norte_Este(e.inicio));
        d.Hoja("Center", Norte_Este(Centro(e)));
        break;
    case Clase_Elemento::Clotoide:
        d.Abrir("Spiral " + longitud + " radiusEnd=\"" + Radio(e.k2) + "\" radiusStart=\"" +
                Radio(e.k1) + "\" " + Giro_De(e) + " spiType=\"clothoid\" constant=\"" + Num(e.A) +
                '"' + inicio);
        d.Hoja("Start", Norte_Este(e.inicio));
        d.Hoja("PI",
               Norte_Este(Interseccion(e.inicio, e.azimut, fin, Final(e).azimut, e.longitud)));
        break;
    }
    d.Hoja("End", Norte_Este(fin));
    d.Cerrar();
}

} // namespace

QByteArray Escribir_LandXML(const Eje& eje, const QDateTime& momento)
{
    double longitud = 0;
    for (const Elemento_Eje& e : eje.elementos)
        longitud += e.longitud;
    Documento d(momento);
    d.Alineacion(eje.nombre, longitud, eje.pk_inicio);
    d.Abrir("CoordGeom");
    double pk = eje.pk_inicio;
    for (size_t i = 0; i < eje.elementos.size(); ++i) {
        const bool ultimo = i + 1 == eje.elementos.size();
        Elemento(d, eje.elementos[i], pk, ultimo ? eje.fin : eje.elementos[i + 1].inicio);
        pk += eje.elementos[i].longitud;
    }
    return d.Acabar();
}

QByteArray Escribir_LandXML(const Rasante& rasante, const QDateTime& momento)
{
    constexpr double SIN_ACUERDO = 0.0005;
    const auto& v = rasante.vertices;
    Documento d(momento);
    d.Alineacion(rasante.nombre, v.back().pk - v.front().pk, v.front().pk);
    d.Abrir("Profile");
    d.Abrir("ProfAlign name=\"" + Escapar(rasante.nombre) + '"');
    for (const Vertice_Rasante& a : v) {
        if (a.longitud < SIN_ACUERDO) {
            d.Hoja("PVI", Par(a.pk, a.cota));
        } else {
            d.Hoja("ParaCurve", Par(a.pk, a.cota), " length=\"" + Num(a.longitud) + '"');
        }
    }
    return d.Acabar();
}

QByteArray Escribir_LandXML(const Secciones& secciones, const QDateTime& momento)
{
    constexpr size_t PUNTOS_MINIMOS = 2;
    std::vector<const Seccion*> buenas;
    for (const Seccion& s : secciones.Lista())
        if (s.puntos.size() >= PUNTOS_MINIMOS) buenas.push_back(&s);
    if (buenas.empty())
        throw Fallo_Conversion{QStringLiteral("No hay ninguna sección de dos puntos o más"), 0, {}};
    const auto [menor, mayor] =
        std::minmax_element(buenas.begin(), buenas.end(),
                            [](const Seccion* a, const Seccion* b) { return a->pk < b->pk; });
    Documento d(momento);
    d.Alineacion(secciones.nombre, (*mayor)->pk - (*menor)->pk, (*menor)->pk);
    d.Abrir("CrossSects");
    for (const Seccion* s : buenas) {
        QByteArray lista;
        for (const Punto_Seccion& p : s->puntos) {
            if (!lista.isEmpty()) lista += ' ';
            Cifras::Anadir_Fijo(lista, p.desplazamiento, DECIMALES);
            lista += ' ';
            Cifras::Anadir_Fijo(lista, p.cota, DECIMALES);
        }
        d.Abrir("CrossSect sta=\"" + Num(s->pk) + '"');
        d.Abrir("CrossSectSurf name=\"Terreno\"");
        d.Hoja("PntList2D", lista);
        d.Cerrar();
        d.Cerrar();
    }
    return d.Acabar();
}
