#pragma once

#include "core/ui/Ventana.h"

/// Splash of the start-up. A click or a key on it unloads it.
class frmPantalla : public Ventana {
    Q_OBJECT
public:
    frmPantalla();

protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
};
