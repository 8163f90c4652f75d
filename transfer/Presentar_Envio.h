#pragma once

#include "transfer/enlace/Emisor.h"

/// The end of every road that sends: what a file or a library has become is shown to the user as
/// something that can go out now.

/// Reminder, step help and the sending dialog, which sends when its button is pressed.
/// @param operacion  whose steps the help shows
/// @param recuerda  the reminder is part of this road
void Presentar_Envio(const Datos_Envio& datos, int operacion, bool recuerda = true);

/// The sending dialog alone.
void Abrir_Envio(const Datos_Envio& datos);
