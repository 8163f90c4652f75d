#pragma once

#include "core/Familia.h"
#include "session/Consultas_Sesion.h"

#include <functional>

/// One of the two dialogs that do the plain raw export alone.
struct Dialogo_Bruto {
    QString titulo;
    QString opciones[2]; ///< `OptFor`
    QString filtro;
    bool cierre_sin_nombre; ///< the closing box comes without a file name, too
    /// Which families have the second option.
    bool (*segunda)(const Familia&);
};
const Dialogo_Bruto& Dialogo_FrmExpBruto();
const Dialogo_Bruto& Dialogo_FrmExpBrut();

/// `BtnAce` of both: asks for the file, and before one that exists is replaced, and writes the
/// session. Cancel leaves the dialog as it is.
/// @param opcion  chosen `OptFor`; for series A the first is the machine form, whatever its label
/// @param ocultar  hides the dialog
void Exportar_En_Bruto(const Dialogo_Bruto& dialogo, const Sesion_Elegida& sesion, int opcion,
                       bool generales, const std::function<void()>& ocultar);
