#pragma once

#include "export/excel/Forma_Excel.h"

#include <QByteArray>
#include <QString>

/// @return true when every character's upper byte is 0, so that a Unicode text is stored narrow
bool Cabe_Estrecho(QStringView texto);

/// Appends the characters of a Unicode text, one byte each when `ancho` is false, else two.
void Anadir_Caracteres(QByteArray& bytes, QStringView texto, bool ancho);

/// A short text of a record (font, sheet, picture) as the form stores it: 8-bit length, in the
/// Unicode form flags, characters.
QByteArray Texto_Corto(const Forma_Excel& forma, QStringView texto);
/// The same with a 16-bit length.
QByteArray Texto_Largo(const Forma_Excel& forma, QStringView texto);
