#pragma once

#include "export/impresion/Dialogo_Imprimir.h"

/// @return true when the system has a default printer
bool Hay_Impresora();
/// Prints on it, the paper's orientation being the document's.
/// @throws Error_Ejecucion 482 when the printer fails
void Imprimir_En_Papel(const Impreso& impreso);
