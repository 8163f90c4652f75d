#pragma once

#include "export/Tarea_Exportar.h"

/// "MDB": a new database with one table, "Datos": the fields are its columns, texts of 80
/// characters, and the row table its records. Titles play no part: the columns always have names.
bool Escribir_MDB(const Tarea_Exportar& tarea);
