#include "conversions/ejes/Poligonal.h"

#include "conversions/ejes/Geometria_Eje.h"

#include <cmath>

using namespace Geometria_Eje;

namespace {

/// Tangents may overlap by this much: the vertices are given to the millimetre.
constexpr double HOLGURA = 0.001;
constexpr double GIRO_MINIMO = 1e-6;
constexpr double GIRO_MAXIMO = 199.99 * GON;

struct Lado {
    double azimut, longitud;
};

void Quitar_Repetidos(std::vector<Vertice_Poligonal>& vertices, Informe_Lectura& informe)
{
    std::vector<Vertice_Poligonal> limpios;
    for (Vertice_Poligonal& v : vertices) {
        if (!limpios.empty() && Distancia(limpios.back().punto, v.punto) < LONGITUD_MINIMA) {
            informe.Omitir(v.linea, v.texto, QStringLiteral("Vértice repetido, se omite"));
        } else {
            limpios.push_back(std::move(v));
        }
    }
    vertices = std::move(limpios);
}

/// Cleans what a vertex says of its curve. @return what makes the curve impossible, or an empty
/// text
QString Revisar(Vertice_Poligonal& v, bool extremo)
{
    const auto nula = [](double x) { return std::abs(x) < RADIO_MINIMO; };
    for (double* valor : {&v.radio, &v.A1, &v.A2})
        if (nula(*valor)) *valor = 0;
    if (v.radio == 0 && v.A1 == 0 && v.A2 == 0) return {};
    if (extremo) return QStringLiteral("Curva en un vértice extremo, se ignora");
    if (v.radio < 0 || v.A1 < 0 || v.A2 < 0)
        return QStringLiteral("Radio o parámetro negativo, el vértice queda sin curva");
    if (v.radio == 0)
        return QStringLiteral("Parámetro de clotoide sin radio, el vértice queda sin curva");
    return {};
}

/// The curve at a vertex. @param previa  tangent length of the vertex before, on the same leg
/// @return what makes it impossible, or an empty text with `t` filled
QString Resolver(const Vertice_Poligonal& v, const Lado& entrada, const Lado& salida, double previa,
                 std::optional<Tangentes>& t)
{
    const double giro = std::abs(Giro(salida.azimut - entrada.azimut));
    if (giro < GIRO_MINIMO || giro > GIRO_MAXIMO)
        return QStringLiteral("Curva sin giro o de vuelta completa, el vértice queda sin curva");
    t = Tangentes_De(giro, v.radio, v.A1, v.A2);
    if (!t) return QStringLiteral("Las clotoides giran más que el vértice, queda sin curva");
    if (previa + t->T1 > entrada.longitud + HOLGURA || t->T2 > salida.longitud + HOLGURA) {
        t.reset();
        return QStringLiteral("Las tangentes no caben, el vértice queda sin curva");
    }
    return {};
}

void Anadir(Eje& eje, Elemento_Eje e)
{
    if (e.longitud >= LONGITUD_MINIMA) eje.elementos.push_back(e);
}

void Anadir_Curva(Eje& eje, const Vertice_Poligonal& v, const Lado& entrada, const Lado& salida,
                  const Tangentes& t)
{
    const double k = std::copysign(1 / v.radio, Giro(salida.azimut - entrada.azimut));
    Situacion s{Polar(v.punto, entrada.azimut, -t.T1), entrada.azimut};
    const auto seguir = [&](Clase_Elemento clase, double longitud, double k1, double k2, double A) {
        if (longitud <= 0) return;
        const Elemento_Eje e{clase, s.punto, s.azimut, longitud, k1, k2, A};
        Anadir(eje, e);
        s = Final(e);
    };
    seguir(Clase_Elemento::Clotoide, t.entrada.longitud, 0, k, v.A1);
    seguir(Clase_Elemento::Arco, t.arco, k, k, 0);
    seguir(Clase_Elemento::Clotoide, t.salida.longitud, k, 0, v.A2);
}

} // namespace

Eje Componer_Poligonal(std::vector<Vertice_Poligonal> vertices, double pk, Informe_Lectura& informe)
{
    Quitar_Repetidos(vertices, informe);
    if (vertices.size() < 2)
        throw Fallo_Conversion{QStringLiteral("La poligonal no llega a dos vértices"), 0, {}};
    std::vector<Lado> lados;
    for (size_t i = 0; i + 1 < vertices.size(); ++i)
        lados.push_back({Azimut(vertices[i].punto, vertices[i + 1].punto),
                         Distancia(vertices[i].punto, vertices[i + 1].punto)});
    Eje eje;
    eje.pk_inicio = pk;
    double previa = 0;
    for (size_t i = 0; i < vertices.size(); ++i) {
        Vertice_Poligonal& v = vertices[i];
        const bool extremo = i == 0 || i + 1 == vertices.size();
        QString defecto = Revisar(v, extremo);
        std::optional<Tangentes> t;
        if (defecto.isEmpty() && v.radio > 0)
            defecto = Resolver(v, lados[i - 1], lados[i], previa, t);
        if (!defecto.isEmpty()) informe.Omitir(v.linea, v.texto, defecto);
        if (i > 0) {
            const Lado& lado = lados[i - 1];
            Anadir(eje, {Clase_Elemento::Recta, Polar(vertices[i - 1].punto, lado.azimut, previa),
                         lado.azimut, lado.longitud - previa - (t ? t->T1 : 0), 0, 0, 0});
        }
        if (t) Anadir_Curva(eje, v, lados[i - 1], lados[i], *t);
        previa = t ? t->T2 : 0;
    }
    eje.fin = vertices.back().punto;
    eje.azimut_fin = lados.back().azimut;
    return eje;
}
