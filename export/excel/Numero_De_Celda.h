#pragma once

#include "export/excel/Libro_Excel.h"

/// The number that a cell's text is, showing as many decimals as the text has.
/// @param texto  blanks around it count for nothing; else a sign, digits with one point among them,
///               no needless zero in front, at most fifteen significant digits
/// @return nothing for any other text ("NAN", "1E5", "007", "12,5"): it stays what it is
std::optional<Celda> Numero_De_Celda(QStringView texto);
