#include "transfer/Puerto_Serie.h"

#include <QPointer>

void Puerto_Serie::Entregar()
{
    if (entregando) return;
    entregando = true;
    const QPointer<Puerto_Serie> vivo(this);
    while (vivo && Abierto() && RThreshold > 0) {
        const qint64 antes = Pendientes();
        if (antes == 0) break;
        Q_EMIT evento();
        if (!vivo) return;
        if (Pendientes() >= antes) break;
    }
    entregando = false;
}
