#pragma once

#include <QString>

/// What `Convertir_Envio` returns for a failure that has been reported.
inline constexpr char16_t ENVIO_CON_ERROR[] = u"ERROR";

/// Turns a file into what an upload to a KRT300 or PX7 sends. A file of points above 4096 bytes
/// shows its progress, and its cancel ends in "ERROR".
/// @param tipo  `ENVIO_COORDENADAS` or `ENVIO_LIBRERIA`
/// @param separador  between the fields of a point
/// @param cabecera  the header frame, for points alone
/// @param datos  the records
/// @return the empty text when all is well, "ERROR" after a box, or the points whose coordinates
///         the instrument can't hold, as `Comprobar_Puntos` gives them
QString Convertir_Envio(int tipo, const QString& separador, const QString& fichero,
                        QString& cabecera, QString& datos);

/// Reads a text file of codes: a number of three characters and a code of ten on each line. Empty
/// lines are passed over; a line that doesn't fit gets its box and the reading goes on.
/// @param codigos  in the order of the file, whatever their numbers
/// @return false when a box was shown: the file is absent, a line doesn't fit, there is no code
/// @throws Error_Ejecucion 9, naming the line, for more than 50 codes
bool Leer_Libreria(const QString& fichero, QStringList& codigos);
