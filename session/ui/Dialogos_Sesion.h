#pragma once

/// Answers the requests of session/Peticiones_Sesion.h with the program's
/// dialogs.
void Conectar_Dialogos_Sesion();
