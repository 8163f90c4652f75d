#pragma once

#include "core/ui/Ventana.h"
#include "session/Consultas_Sesion.h"

class Panel_Plano;

/// The points of a session in a plan.
class FrmPlano : public Ventana {
    Q_OBJECT
public:
    FrmPlano();

    /// Shows it modally; a session without anything to draw is told and nothing shown.
    void Ver(const Sesion_Elegida& sesion);

private:
    Panel_Plano* panel;
};
