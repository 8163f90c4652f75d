#pragma once

// The form: docs/formas/nv400.md

#include <optional>
#include <QString>

/// Lines of the digital level: a type letter and comma-separated fields; the fourth character is
/// the unit digit, which tells in what unit the readings stand.

/// Type letter of `linea`; a null character for an empty line.
QChar Tipo_NV400(QStringView linea);

/// Text between comma number `n` and the next one, as it stands.
/// @param n  number of the comma in front of the field, from 1
/// @return empty when the line has fewer commas. The last character of a line never belongs to a
///         field: the level closes its lines with a comma, and one that was cut loses a character.
QString Texto_Campo_NV400(QStringView linea, int n);

/// Number that field `n` of a line of type `tipo` is divided by for unit digit `unidad`.
/// @return nothing when the field is no number; 0 when the unit digit has no divisor
std::optional<double> Divisor_NV400(QChar tipo, int n, QChar unidad);

/// Field `n` of a level line as the user reads it.
/// @param n  0: the type letter; otherwise the number of the comma in front of the field
/// @return readings and heights in metres (feet for the unit digits of feet) with their fixed
///         decimals and a point, half away from zero; any other field as it stands. An unknown unit
///         digit, or a field without digits, gives the number 0.
QString Campo_NV400(const QString& linea, int n);
