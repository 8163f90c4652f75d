#pragma once

#include "transfer/enlace/Conversacion.h"

#include <QLabel>

/// The picture at the head of every transfer dialog: where the data come from on the left, where
/// they go on the right, and `Rayo`, which moves between them as its conversation does.
class Dibujo_Transferencia : public QWidget {
    Q_OBJECT
public:
    /// The two pictures: file names below `bmp`.
    struct Extremos {
        const char *izquierdo, *derecho;
    };
    Dibujo_Transferencia(const Extremos& extremos, const Lugar_Rayo (&lugares)[LUGARES_RAYO],
                         Conversacion& conversacion);

private:
    QLabel* Poner(const QString& nombre, const char* fichero, int x, int ancho);
};
