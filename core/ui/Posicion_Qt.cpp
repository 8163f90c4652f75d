#include "core/ui/Posicion_Qt.h"

#include "core/Posicion.h"

#include <QScreen>
#include <QWidget>

namespace {

// What must stay inside the area or the screen for the title to be caught with the mouse.
constexpr int ASIDERO = 40;

Posicion_Ventana Lugar(const QWidget& marco)
{
    Posicion_Ventana lugar;
    lugar.estado = marco.isMinimized() ? 1 : marco.isMaximized() ? 2 : 0;
    lugar.top = marco.y();
    lugar.left = marco.x();
    lugar.width = marco.width();
    lugar.height = marco.height();
    return lugar;
}

QRect Espacio(const QWidget& marco)
{
    if (!marco.isWindow()) return marco.parentWidget()->rect();
    return marco.screen()->availableVirtualGeometry();
}

} // namespace

void Leer_Posicion_Ventana(QWidget& marco, const QString& seccion, int modo)
{
    const Posicion_Ventana antes = Lugar(marco);
    Posicion_Ventana lugar = antes;
    Leer_Posicion(lugar, Fichero_Posicion(), seccion, modo);
    if (lugar.estado == 1) {
        marco.showMinimized();
    } else if (lugar.estado == 2) {
        marco.showMaximized();
    } else {
        if (lugar.width != antes.width || lugar.height != antes.height)
            marco.resize(qMax(lugar.width, 1), qMax(lugar.height, 1));
        const QRect espacio = Espacio(marco);
        const QPoint donde(
            qBound(espacio.left() + ASIDERO - marco.width(), lugar.left,
                   qMax(espacio.left(), espacio.right() - ASIDERO)),
            qBound(espacio.top(), lugar.top, qMax(espacio.top(), espacio.bottom() - ASIDERO)));
        if (lugar.top != antes.top || lugar.left != antes.left) marco.move(donde);
    }
}

void Guardar_Posicion_Ventana(const QWidget& marco, const QString& seccion, int modo)
{
    Guardar_Posicion(Lugar(marco), Fichero_Posicion(), seccion, modo);
}
