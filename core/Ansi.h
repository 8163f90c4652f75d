#pragma once

#include <QByteArray>
#include <QString>

/// Windows-1252, the page of every wire and file of the program: one byte, one character, for all
/// 256 codes. The five codes that the page leaves undefined (81, 8D, 8F, 90, 9D hex) stand for the
/// character of the same number, so that a received byte is never lost.
namespace Ansi {

/// @return the text of `bytes`, as many characters as bytes
QString A_Texto(QByteArrayView bytes);

/// @return one byte a UTF-16 unit; a character that the page cannot hold becomes "?"
///         (a surrogate pair is one character and gives one "?")
QByteArray A_Bytes(QStringView texto);

/// The same, at the end of `bytes`.
void Agregar_Bytes(QByteArray& bytes, QStringView texto);

/// @return the character's code in the page, 0 to 255; 63 ("?") if the page cannot hold it
int Codigo(QChar c);

/// @return the character of code `codigo` (taken modulo 256)
QChar Caracter(int codigo);

/// @return true when every character of `texto` has a place in the page
bool Cabe(QStringView texto);

} // namespace Ansi
