#pragma once

#include <QString>

/// The results of a monitoring campaign as a workbook: each line of the text a row from the second
/// on, each field a cell, rows 2 to 100 in bold.
/// @param texto  results file: fields separated by ";"
/// @param destino  appears whole or stays as it was
/// @throws Error_Ejecucion 9 for a line beyond the hundredth or a field beyond the sheet's columns,
///         naming the line; those of the reading and of the writing of a file
void Escribir_Libro_Resultados(const QString& texto, const QString& destino);
