#include "conversions/secciones/Modelo_Secciones.h"

#include <algorithm>

size_t Secciones::Abrir(double pk)
{
    constexpr double MISMA = 0.0005;
    // Rounding of the difference must not part two stations that are written 0.0005 apart.
    constexpr double HOLGURA = 1e-9;
    if (!lista.empty() && lista.back().pk == pk) return lista.size() - 1;
    size_t hallada = lista.size();
    for (auto i = por_pk.lower_bound(pk - MISMA - HOLGURA);
         i != por_pk.end() && i->first <= pk + MISMA + HOLGURA; ++i)
        hallada = std::min(hallada, i->second);
    if (hallada == lista.size()) {
        // Sections of a file are much alike.
        const size_t como_la_anterior = lista.empty() ? 0 : lista.back().puntos.size();
        lista.push_back({pk, {}});
        lista.back().puntos.reserve(como_la_anterior);
        por_pk.emplace(pk, hallada);
    }
    return hallada;
}

void Secciones::Ordenar()
{
    const auto antes = [](const Punto_Seccion& a, const Punto_Seccion& b) {
        return a.desplazamiento < b.desplazamiento;
    };
    for (Seccion& s : lista)
        if (!std::is_sorted(s.puntos.begin(), s.puntos.end(), antes))
            std::stable_sort(s.puntos.begin(), s.puntos.end(), antes);
    if (std::erase_if(lista, [](const Seccion& s) { return s.puntos.empty(); }) == 0) return;
    por_pk.clear();
    for (size_t i = 0; i < lista.size(); ++i)
        por_pk.emplace(lista[i].pk, i);
}
