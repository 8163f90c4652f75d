#include "conversions/rasantes/Resolver_Rasante.h"

#include <cmath>

namespace {

/// Curves may overlap by this much: stations and lengths are given to the millimetre.
constexpr double HOLGURA = 0.001;

/// Length of the curve at a vertex. @return why there is none, or an empty text
QString Longitud_De(const Vertice_Fuente& v, double theta, double& longitud)
{
    switch (v.dato) {
    case Dato_Acuerdo::Kv:
        longitud = std::abs(v.valor) * theta;
        return {};
    case Dato_Acuerdo::Bisectriz:
        if (theta == 0) return QStringLiteral("Bisectriz sin cambio de pendiente, sin acuerdo");
        longitud = 8 * std::abs(v.valor) / theta;
        return {};
    case Dato_Acuerdo::Tangente:
        longitud = 2 * v.valor;
        break;
    case Dato_Acuerdo::Longitud:
        longitud = v.valor;
        break;
    }
    if (longitud >= 0) return {};
    longitud = 0;
    return QStringLiteral("Longitud de acuerdo negativa, sin acuerdo");
}

double Pendiente(const Vertice_Fuente& a, const Vertice_Fuente& b)
{
    return (b.cota - a.cota) / (b.pk - a.pk);
}

std::vector<const Vertice_Fuente*> Ascendentes(const std::vector<Vertice_Fuente>& vertices,
                                               Informe_Lectura& informe)
{
    std::vector<const Vertice_Fuente*> buenos;
    for (const Vertice_Fuente& v : vertices) {
        if (!buenos.empty() && v.pk <= buenos.back()->pk) {
            informe.Omitir(v.linea, v.texto,
                           QStringLiteral("El P.K. no sigue al anterior, el vértice se omite"));
        } else {
            buenos.push_back(&v);
        }
    }
    return buenos;
}

} // namespace

Rasante Resolver_Rasante(const std::vector<Vertice_Fuente>& vertices, Informe_Lectura& informe)
{
    const auto buenos = Ascendentes(vertices, informe);
    if (buenos.size() < 2)
        throw Fallo_Conversion{QStringLiteral("La rasante no llega a dos vértices"), 0, {}};
    Rasante rasante;
    for (size_t i = 0; i < buenos.size(); ++i) {
        const Vertice_Fuente& v = *buenos[i];
        double longitud = 0;
        QString defecto;
        if (v.valor != 0 && (i == 0 || i + 1 == buenos.size())) {
            defecto = QStringLiteral("Acuerdo en un vértice extremo, se ignora");
        } else if (v.valor != 0) {
            const double theta =
                std::abs(Pendiente(v, *buenos[i + 1]) - Pendiente(*buenos[i - 1], v));
            defecto = Longitud_De(v, theta, longitud);
            const double medio_anterior = rasante.vertices.back().longitud / 2;
            if (medio_anterior + longitud / 2 > v.pk - buenos[i - 1]->pk + HOLGURA ||
                longitud / 2 > buenos[i + 1]->pk - v.pk + HOLGURA) {
                longitud = 0;
                defecto = QStringLiteral("El acuerdo se solapa con el contiguo, se ignora");
            }
        }
        if (!defecto.isEmpty()) informe.Omitir(v.linea, v.texto, defecto);
        rasante.vertices.push_back({v.pk, v.cota, longitud});
    }
    return rasante;
}
