#include "conversions/rasantes/Geometria_Rasante.h"

#include <algorithm>
#include <cmath>

namespace Geometria_Rasante {

std::optional<double> Cota(const Rasante& rasante, double pk)
{
    const auto& v = rasante.vertices;
    if (v.size() < 2 || pk < v.front().pk || pk > v.back().pk) return {};
    const auto detras =
        std::upper_bound(v.begin() + 1, v.end() - 1, pk,
                         [](double x, const Vertice_Rasante& a) { return x < a.pk; });
    const size_t i = size_t(detras - v.begin()); // the grade runs from vertex i - 1 to vertex i
    const auto pendiente = [&](size_t hasta) {
        return (v[hasta].cota - v[hasta - 1].cota) / (v[hasta].pk - v[hasta - 1].pk);
    };
    double cota = v[i - 1].cota + pendiente(i) * (pk - v[i - 1].pk);
    // Inside half a curve the parabola leaves the grade by θ·d²/(2L), d from where the curve
    // begins.
    for (const size_t vertice : {i - 1, i}) {
        if (vertice == 0 || vertice + 1 == v.size()) continue;
        const double d = v[vertice].longitud / 2 - std::abs(pk - v[vertice].pk);
        if (d > 0)
            cota +=
                (pendiente(vertice + 1) - pendiente(vertice)) * d * d / (2 * v[vertice].longitud);
    }
    return cota;
}

} // namespace Geometria_Rasante
