#pragma once

#include "export/excel/Libro_Excel.h"
#include "export/excel/Salida_Biff.h"

/// Writes the fonts, number formats, cell looks (XF) and styles that every book gets, in the
/// records of the form.
void Escribir_Estilos(const Forma_Excel& forma, Salida_Biff& salida);

/// @return the number of the XF that shows a cell's looks
quint16 Xf_De(const Celda& celda);

/// Number of the XF of cells without looks of their own.
constexpr quint16 XF_NORMAL = 15;
