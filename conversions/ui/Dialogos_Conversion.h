#pragma once

/// Answers the requests of conversions/biblioteca/Peticiones_Conversion.h with the program's dialogs.
void Conectar_Dialogos_Conversion();

/// Shows `frmConvEst` for conversions to the instrument's form (0) or to LandXML (1).
void Mostrar_frmConvEst(int modo);

/// Shows `frmRobotizada`, which asks for its source files first; one that is up is brought up. An
/// error on the way is reported.
void Mostrar_frmRobotizada();
