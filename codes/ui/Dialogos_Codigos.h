#pragma once

/// Lets the flows of the code libraries show their dialogs.
void Conectar_Dialogos_Codigos();

/// Opens the libraries of the family in force under the title of the maintenance.
void Mostrar_Librerias();
