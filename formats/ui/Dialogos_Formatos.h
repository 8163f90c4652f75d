#pragma once

/// Answers the requests of formats/Peticiones_Formatos.h that have dialogs on this floor, and says
/// of the level's and of printing that they are not there yet.
void Conectar_Dialogos_Formatos();
