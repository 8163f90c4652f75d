#pragma once

#include "core/ui/Ventana.h"
#include "session/Consultas_Sesion.h"

class Panel_Bruto;

/// Export of a session to disk, as lines or as HD-6.
class FrmExpBrut : public Ventana {
    Q_OBJECT
public:
    FrmExpBrut();

    /// Shows it modally for a session.
    void Abrir(const Sesion_Elegida& sesion);

private:
    Panel_Bruto* panel;
};
