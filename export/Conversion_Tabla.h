#pragma once

#include "export/excel/Libro_Excel.h"
#include "export/texto/Tabla_Separada.h"

/// A workbook of one sheet, "hoja1": the titles in the first row, the rows below.
/// @param numeros  cells whose text is a number become numbers; else all cells are texts
/// @throws Error_Ejecucion 3437 for more rows, 3190 for more columns than any form has
Libro_Excel Libro_De_Tabla(const Tabla_Separada& tabla, bool numeros);

/// The sheet's values from its first row and column on, as tab-separated text in UTF-8, one line
/// ended by LF a row; every line has as many cells as the widest row.
QByteArray Texto_De_Hoja(const Hoja_Excel& hoja);

/// Writes the table to a new database, in place of a file that stands there: the titles are the
/// names of the columns, all of them texts of 80 characters that may be empty.
/// @param nombre_tabla  its table
/// @throws Error_Ejecucion those of Base_Jet; one that a row brings names the row's line
void Base_De_Tabla(const Tabla_Separada& tabla, const QString& fichero,
                   const QString& nombre_tabla);
