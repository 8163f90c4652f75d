#pragma once

// The form: docs/formas/krt300.md

#include <QString>

/// The two checks that instruments put behind what they send, and that what goes to them carries.
/// Both count with the codes of the characters' page (`Ansi::Codigo`), so a byte above 127 counts
/// as it came over the wire.

/// Check of a KRT300 or PX7 frame: exclusive or of the character codes, as decimal text of three
/// digits; "000" for an empty text.
QString Suma_XOR(QStringView cadena);

/// Check of a line of the level: the sum of the character codes, its low 6 bits plus 32, so one of
/// the characters 32 to 95; a blank for an empty text.
QChar Suma_Nivel(QStringView cadena);
