#pragma once

#include <QString>
#include <vector>

/// A table of text cells, first index the column, second the row, both from 0 and all columns of
/// one length.
using Columnas_Texto = std::vector<std::vector<QString>>;

/// Pads the cells of each column with blanks on the left to the length of its longest.
void Igualar_Ancho(Columnas_Texto& tabla);
/// The same, leaving out the last column and the last row.
void Igualar_Ancho_Menos_Uno(Columnas_Texto& tabla);
/// Drops the rows whose cells are all empty, the order of the others staying; a table without any
/// content stays as it is.
void Quitar_Vacios(Columnas_Texto& tabla);
