#include "session/Columnas_Texto.h"

#include <algorithm>

namespace {

void Igualar(std::vector<QString>& columna, std::size_t filas)
{
    qsizetype ancho = 0;
    for (std::size_t r = 0; r < filas; ++r)
        ancho = std::max(ancho, columna[r].size());
    for (std::size_t r = 0; r < filas; ++r)
        columna[r] = columna[r].rightJustified(ancho);
}

} // namespace

void Igualar_Ancho(Columnas_Texto& tabla)
{
    for (auto& columna : tabla)
        Igualar(columna, columna.size());
}

void Igualar_Ancho_Menos_Uno(Columnas_Texto& tabla)
{
    for (std::size_t c = 0; c + 1 < tabla.size(); ++c)
        if (!tabla[c].empty()) Igualar(tabla[c], tabla[c].size() - 1);
}

void Quitar_Vacios(Columnas_Texto& tabla)
{
    if (tabla.empty()) return;
    std::vector<std::size_t> llenas;
    for (std::size_t r = 0; r < tabla.front().size(); ++r)
        if (std::ranges::any_of(tabla, [r](const auto& columna) { return !columna[r].isEmpty(); }))
            llenas.push_back(r);
    if (llenas.empty() || llenas.size() == tabla.front().size()) return;
    for (auto& columna : tabla) {
        for (std::size_t n = 0; n < llenas.size(); ++n)
            if (llenas[n] != n) columna[n] = std::move(columna[llenas[n]]);
        columna.resize(llenas.size());
    }
}
