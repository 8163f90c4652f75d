#pragma once

#include <QString>

/// A level session as a levelling book, through the converter library: asks for the five texts of
/// its heading. A failure is reported.
/// @return true when the book was written; false also when the question was cancelled
bool Exportar_Nivel_Ign(qint64 id, const QString& ruta);
