#pragma once

#include "export/excel/Libro_Excel.h"

/// Opens the workbook of a file of any form that `Leer_Libro` knows. The sheet of a plain file is
/// called after the file.
/// @throws Error_Ejecucion 3274 when it is no workbook or damaged; those of Ficheros::Leer
Libro_Excel Abrir_Libro(const QString& fichero);

/// Writes the workbook to a file, whole or not at all.
/// @throws Error_Ejecucion those of Libro_Excel::Comprobar and Ficheros::Escribir
void Guardar_Libro(const Libro_Excel& libro, const QString& fichero, Version_Excel version);
