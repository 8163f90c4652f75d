#include "transfer/enlace/Receptor.h"

#include <algorithm>
#include <ranges>

namespace {

// What two texts have in common: place by place where nothing was lost on the way, else from both
// ends, no character counted twice.
qsizetype En_Comun(QStringView a, QStringView b)
{
    if (a.size() == b.size())
        return std::ranges::count(std::views::iota(qsizetype(0), a.size()), true,
                                  [&](qsizetype i) { return a[i] == b[i]; });
    const qsizetype tope = std::min(a.size(), b.size());
    qsizetype delante = 0, detras = 0;
    while (delante < tope && a[delante] == b[delante])
        ++delante;
    while (delante + detras < tope && a[a.size() - 1 - detras] == b[b.size() - 1 - detras])
        ++detras;
    return delante + detras;
}

} // namespace

Receptor::~Receptor() = default;

QString Receptor::Rescatable() const
{
    return buffer;
}

bool Es_Repeticion(QStringView datos_mala, QStringView suma_mala, QStringView datos_buena,
                   QStringView suma_buena)
{
    if (datos_mala == datos_buena) return true;
    return suma_mala == suma_buena &&
           4 * En_Comun(datos_mala, datos_buena) >= 3 * datos_buena.size();
}
