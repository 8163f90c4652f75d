#pragma once

#include "export/excel/Libro_Excel.h"

#include <QByteArray>

/// The workbook as the bytes of a file of the given form.
/// @throws Error_Ejecucion when the form cannot hold the book, see Libro_Excel::Comprobar
QByteArray Escribir_Libro(const Libro_Excel& libro, Version_Excel version);
