#pragma once

#include <QString>
#include <QStringList>

/// Delimited text is the program's everyday data structure. Tokens count from 1; a separator may be
/// longer than one character.

/// Joins the items of lists kept in tags, in stored text and in code libraries.
inline constexpr char16_t SEP_LISTA = 6;
/// Joins the fields inside an item of such a list.
inline constexpr char16_t SEP_CAMPO = 5;

/// Token `n`; an empty text when there are fewer, or `n` is below 1.
QString Trozo(qint64 n, const QString& cadena, const QString& sep);
QString Trozo(qint64 n, const QString& cadena, QChar sep);
/// Separators + 1; an empty text has one token.
qint64 Contar_Trozos(const QString& cadena, const QString& sep);
/// Number of the first token equal to `buscado`, or 0.
qint64 Buscar_Trozo(const QString& cadena, const QString& buscado, const QString& sep);
/// With `n` = 1 the first token, the text staying; otherwise cuts the first token off `cadena` and
/// returns it.
QString Sacar_Trozo(qint64 n, QString& cadena, const QString& sep);
/// The text with token `n` replaced; an empty text when `n` is beyond the last.
QString Cambiar_Trozo(const QString& cadena, const QString& nuevo, qint64 n, const QString& sep);
/// The text with `nuevo` put in as token `n`; beyond the last it is appended with a separator.
QString Insertar_Trozo(const QString& cadena, const QString& nuevo, qint64 n, const QString& sep);
/// The text without token `n` and its separator; beyond the last an empty text.
QString Quitar_Trozo(const QString& cadena, qint64 n, const QString& sep);
/// Replaces each occurrence, left to right; what was put in is not searched again.
QString Reemplazar(const QString& cadena, const QString& buscado, const QString& nuevo);
/// @return true if the one character `c` stands in `cadena`
bool Contiene_Caracter(const QString& c, const QString& cadena);
/// With `c` at place p, the value of the two characters from p + 1; 99 when `c` isn't there.
int Valor_Tras_Caracter(const QString& c, const QString& cadena);
/// `valor` left-padded with zeros to `n` places, cut to the last `n`.
QString Rellenar_Ceros(const QString& valor, int n);
/// Trimmed, with each run of blanks reduced to one.
QString Quitar_Espacios_Dobles(const QString& cadena);
/// All elements but the last, each trimmed, in apostrophes and followed by a blank, joined by ",".
QString Lista_SQL(const QStringList& elementos);
