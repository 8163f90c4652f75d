#pragma once

/// Answers the requests of rawfiles/Peticiones_Rawfiles.h with the program's dialogs, and opens
/// behind the browser's doors what it offers of raw files.
void Conectar_Dialogos_Brutos();
