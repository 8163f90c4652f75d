#pragma once

#include "export/Tarea_Exportar.h"

/// Stage 1 while the level is in force: the whole session and the two halves of the format, as the
/// store has it. The row table, for outputs that know nothing of the level, holds the detail's
/// fields as its columns and one row a measurement; its cells are not padded.
/// @throws Error_Ejecucion 3075 for a format's name with an apostrophe, those of the database
Datos_Formateados Cargar_Nivel(const Origen_Exportar& origen);
