#pragma once

/// Gives the format dialogs the export dialog to go on to.
void Conectar_Dialogos_Exportar();
