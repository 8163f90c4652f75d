#include "transfer/enlace/Puerto_Serie.h"

#include <QPointer>

std::optional<char> Puerto_Serie::Leer()
{
    const std::optional<char> c = Sacar_Byte();
    if (c) ++leidos;
    return c;
}

void Puerto_Serie::Entregar()
{
    if (entregando) return;
    entregando = true;
    const QPointer<Puerto_Serie> vivo(this);
    while (Abierto() && RThreshold > 0 && Pendientes() > 0) {
        const quint64 antes = leidos;
        Q_EMIT evento();
        if (!vivo) return;
        // What waits tells nothing: more may have come in than the handler read.
        if (leidos == antes) break;
    }
    entregando = false;
}
