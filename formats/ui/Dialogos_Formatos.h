#pragma once

/// Answers the requests of formats/Peticiones_Formatos.h that have dialogs on this floor, and says
/// of printing that it is not there yet.
void Conectar_Dialogos_Formatos();
