#pragma once

#include "core/ui/Ventana.h"
#include "session/Consultas_Sesion.h"

class Panel_Bruto;

/// Plain raw export of a session, as lines or in the machine form.
class FrmExpBruto : public Ventana {
    Q_OBJECT
public:
    FrmExpBruto();

    /// Shows it modally for a session.
    void Abrir(const Sesion_Elegida& sesion);

private:
    Panel_Bruto* panel;
};
