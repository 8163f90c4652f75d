#pragma once

#include "export/Tarea_Exportar.h"

/// "XLS": the row table in a copy of the template, one row a row, every cell as it stands. Titles,
/// when wanted, fill the first row behind the names of the columns and leave the next one blank.
/// The options are of the form `Opciones_Libro`.
bool Escribir_Excel(const Tarea_Exportar& tarea);
