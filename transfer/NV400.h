#pragma once

#include "transfer/Recepcion.h"

/// The level's fixed lines, with their own checksums ("Z", "&", "R" and "!").
inline const QString LINEA_INICIO = QStringLiteral("A,01,Z,\r\n");
inline const QString LINEA_FIN = QStringLiteral("Z,&,\r\n");
inline const QByteArray LINEA_ACK = QByteArrayLiteral("\x06,R,\r\n");
inline const QByteArray LINEA_NAK = QByteArrayLiteral("\x15,!,\r\n");

/// What a received line is.
enum class Clase_Linea { Mala = 0, Inicio = 1, Datos = 2, Fin = 3 };

/// Classifies a whole line, CR LF included; four characters or fewer are bad.
Clase_Linea Clasificar_Linea(const QString& linea);

/// Receives one byte of an NV400. A line ends at LF; a good one is answered with the ACK line and,
/// being data, added to `Recepcion.Acumulado`; a bad one with the NAK line, and the level repeats it.
/// The end line makes `Acumulado` the buffer and ends the reception.
void Recibir_NV400(char caracter, const Salida_Recepcion& comm);

/// Name of the job that a line opens: from position 6 up to the first comma there or further; empty
/// without one.
QString Nombre_Trabajo(const QString& linea);
