#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

/// The text and number forms that the program relies on, exact to the letter. Positions are
/// one-based. The machine is taken to be Spanish (decimal comma) whatever its real locale.
namespace Basico {

/// Number at the head of `texto`: the longest numeric prefix with "." as the decimal mark, blanks,
/// tabs and line feeds skipped wherever they stand; sign and exponent (e or d) are read.
/// @return 0 when no number stands there
double Val(QStringView texto);

/// @param desde  first character, from 1
/// @param cuantos  at most so many; without it, to the end
/// @throws Error_Ejecucion 5 when `desde` is below 1 or `cuantos` negative
QString Mid(const QString& texto, qint64 desde, qint64 cuantos);
QString Mid(const QString& texto, qint64 desde);

/// First or last `n` characters. @throws Error_Ejecucion 5 when `n` is negative
QString Left(const QString& texto, qint64 n);
QString Right(const QString& texto, qint64 n);

/// Without the blanks (character 32 only) at both ends, at the left, at the right.
QString Trim(const QString& texto);
QString LTrim(const QString& texto);
QString RTrim(const QString& texto);

/// `n` blanks. @throws Error_Ejecucion 5 when `n` is negative
QString Space(qint64 n);

/// Place of `buscado` in `texto`, from 1, looked for from `desde`; 0 when it isn't there.
/// An empty `buscado` is found at `desde`, unless `texto` is empty or `desde` lies behind it.
/// @throws Error_Ejecucion 5 when `desde` is below 1
qint64 InStr(qint64 desde, QStringView texto, QStringView buscado);

/// Whole part, cut towards zero.
double Fix(double x);

/// Nearest whole number, a half going to the even neighbour (banker's rounding).
double Redondear_Par(double x);

/// Conversion of a number to a 16-bit or 32-bit integer, rounded to even.
/// @throws Error_Ejecucion 6 when it doesn't fit
int CInt(double x);
qint64 CLng(double x);

/// The same from text, read as the Spanish machine reads it: blanks around, a sign, digits with
/// "." between thousands, one decimal comma, an exponent.
/// @throws Error_Ejecucion 13 when the text is no number, 6 when it doesn't fit
int CInt(const QString& texto);
qint64 CLng(const QString& texto);

/// A number written as the Spanish machine writes it ("1234,5"), or as stored text has it, read
/// whole. @throws Error_Ejecucion 13 when the text is no number
double CDbl(const QString& texto);

/// A stored number, its mark a point or a comma, read whole as `CDbl` reads it once the point has
/// become a comma. @throws Error_Ejecucion 13 when the text is no number
double Leer_Numero(QStringView texto);
/// The same; nothing when the text is no number or none that fits.
std::optional<double> Numero_O_Nada(QStringView texto);

/// @return true when `texto` is a number whole as `CDbl` reads it
bool IsNumeric(const QString& texto);

/// General number text: up to 15 significant digits, no blanks, "E+nn" beyond; `coma` tells the
/// decimal mark of the Spanish machine (CStr) from the point (Str, without its leading blank).
QString Texto_Numero(double x, bool coma = true);

/// `numero` written after `dibujo`: "0" a digit or zero, "#" a digit or nothing, "." the decimal
/// mark (written as the machine's comma), other characters as they stand; rounded half away from
/// zero on the number's 15-digit decimal reading. A negative number keeps its "-" also when all the
/// digits shown are 0, so that a fixed form always has its sign.
QString Formato(double numero, const QString& dibujo);

/// The same after a picture "0.000" of `decimales` decimals ("0" without), the mark being a point, at
/// the end of `bytes`: what long files are written with.
void Agregar_Fijo(QByteArray& bytes, double numero, int decimales);

/// Text form: a text that `IsNumeric` is formatted as a number, any other returned as it stands.
QString Formato(const QString& texto, const QString& dibujo);

/// `fecha` written after `dibujo` of the marks DD, MM, YYYY, YY, HH and SS in any case; MM behind HH
/// (or "NN") is the minute; other characters stand as they are.
QString Formato_Fecha(const QDateTime& fecha, const QString& dibujo);

} // namespace Basico
