#pragma once

#include <initializer_list>
#include <optional>
#include <QByteArrayView>
#include <QString>
#include <QVarLengthArray>
#include <span>

/// Fields and numbers of a source line. Nothing here knows a locale.
namespace Campos_Fuente {

using Lista = QVarLengthArray<QByteArrayView, 16>;

/// Without the blanks and tabs (and stray CR) at both ends.
QByteArrayView Recortar(QByteArrayView texto);

/// Fields between runs of blanks and tabs; none is empty.
Lista Por_Blancos(QByteArrayView linea);

/// Fields between single separators, each trimmed; an empty line has one empty field.
Lista Por_Separador(QByteArrayView linea, char separador);

enum class Marca {
    Punto,        ///< "." alone: comma-separated layouts and XML
    Punto_O_Coma, ///< blank-separated layouts take "," as "." too
};

/// Reads a field that is a number whole: sign, digits, decimal mark, exponent with E or D. Blanks
/// around it are ignored.
/// @return nothing when the field is no number, or is 1e15 and above in absolute value: no quantity
///         of a road has that size, and what is computed from it stays finite
std::optional<double> Numero(QByteArrayView campo, Marca marca = Marca::Punto_O_Coma);

/// Reads the first fields of a line at one go when all are plain decimals (at most 15 digits, no
/// exponent), which nearly every line of a big file is.
/// @param separador  between the fields; a blank: runs of blanks and tabs
/// @param valores  as many numbers as are wanted; filled when all could be read
/// @return what stands behind them in the line, without the blanks in front; nothing when a field
///         is anything else, or missing: `Numero` then tells what it is
std::optional<QByteArrayView> Numeros_Llanos(QByteArrayView linea, char separador, Marca marca,
                                             std::span<double> valores);

/// Reads a station: a number, or "k+mmm.mmm" (1+250.000 is 1250; a sign in front holds for all).
std::optional<double> Numero_PK(QByteArrayView campo, Marca marca = Marca::Punto_O_Coma);

/// Reads the numbers of the fields from `desde` on into `destinos`, one a field; a field that isn't
/// there leaves 0. @return false at the first field that is no number
bool Numeros(const Lista& campos, qsizetype desde, std::initializer_list<double*> destinos,
             Marca marca = Marca::Punto_O_Coma);

/// Reads an angle in packed sexagesimal degrees "d.mmssff" (45.3015 is 45°30'15").
/// @return gon; nothing when it is no number or holds 60 minutes or seconds
std::optional<double> Sexagesimal_A_Gon(QByteArrayView campo);

/// @return true when the line begins as the blank-separated layouts mark a comment: with "*", ";",
///         "#" or a letter
bool Es_Comentario(QByteArrayView linea);

/// @return true when `texto` begins with `inicio` in any case (ASCII letters)
bool Empieza_Por(QByteArrayView texto, QByteArrayView inicio);

/// @return true when the two are equal but for the case of ASCII letters
bool Iguales(QByteArrayView a, QByteArrayView b);

/// Axis name of a line "EJE : text"; nothing for another line.
std::optional<QString> Nombre_Eje(QByteArrayView linea);

} // namespace Campos_Fuente
