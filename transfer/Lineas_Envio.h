#pragma once

#include "core/Error_Ejecucion.h"

#include <QString>
#include <QStringList>

/// The text files whose lines go to an instrument: what all of them are held to before anything is
/// sent.

/// Lines of a file, without their ends. An instrument takes one byte a character, so that a file of
/// another encoding would arrive as other names than the user sees.
/// @throws Error_Ejecucion 53 when the file isn't there or has no byte, 321 when it is in UTF-8 or
///         UTF-16 or no text at all (the line is named), 70, 75 as `Ficheros::Leer`
QStringList Leer_Lineas_Envio(const QString& fichero);

/// A failure that names its line.
/// @param linea  number, from 1
/// @param motivo  why; empty: the number's own description
Error_Ejecucion Error_De_Linea(int numero, qint64 linea, const QString& texto,
                               const QString& motivo = {});

/// The first character of a text that no instrument takes (its code must be from 32 to 126); empty
/// when all are taken. A pair of surrogates is one character.
QString Primero_No_Aceptado(QStringView texto);

/// @throws Error_Ejecucion 5, naming the line, when a field holds a character that no instrument
///         takes, or the one that stands between the records or fields of the wire
void Comprobar_Campo(const QString& campo, QChar reservado, qint64 linea, const QString& texto);

/// The box for a line that doesn't split into the fields of a point.
void Avisar_Separador(const QString& linea);
