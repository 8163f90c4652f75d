#pragma once

// The form: docs/formas/textos.md

#include "export/Tarea_Exportar.h"

// The report of a levelling run on its ways out; stage 1 is `Cargar_Nivel`.

/// Both text kinds: columns of fixed widths with the separator between them. The options are of the
/// form `Opciones_Texto`.
bool Escribir_Nivel_Texto(const Tarea_Exportar& tarea);

/// A workbook: each column of the report is a column of the sheet, its values whole and without
/// filling; a blank line is a blank row. The options are of the form `Opciones_Libro`.
bool Escribir_Nivel_Excel(const Tarea_Exportar& tarea);
