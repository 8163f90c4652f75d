#pragma once

#include "export/excel/Libro_Excel.h"
#include "export/excel/Salida_Biff.h"

/// The records that tell what is printed of a sheet: a name built into Excel, whose formula is the
/// area. Without an area nothing is written.

/// Of the one sheet of a plain stream.
void Escribir_Area_De_Hoja(Salida_Biff& salida, const Hoja_Excel& hoja);

/// Of all sheets of a book, in its globals, behind the names of the sheets.
void Escribir_Areas_De_Libro(Salida_Biff& salida, const Forma_Excel& forma,
                             const Libro_Excel& libro);
