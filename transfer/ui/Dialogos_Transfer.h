#pragma once

/// Answers the requests of transfer/Peticiones_Transfer.h with the program's
/// dialogs.
void Conectar_Dialogos_Transfer();
