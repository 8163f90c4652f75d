#pragma once

#include "export/excel/Libro_Excel.h"

#include <QByteArrayView>

/// Reads a workbook from the bytes of its file: the compound files of Excel 5 to 2003 and the plain
/// sheets of Excel 3 and 4. Of formulas their last value is taken, dates are numbers, true and
/// false are 1 and 0, an error is its text ("#N/A").
/// @param nombre_hoja  name for the sheet of a plain file, which has none of its own
/// @throws Error_Ejecucion 3274 when the file is damaged, protected or of another kind
Libro_Excel Leer_Libro(QByteArrayView fichero, const QString& nombre_hoja);
