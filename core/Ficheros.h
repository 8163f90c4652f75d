#pragma once

#include "core/Error_Ejecucion.h"

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <QStringList>

/// Whole files, read and written at one stroke. A file that is written appears whole or not at all:
/// a failure leaves the one that stood there untouched.
namespace Ficheros {

/// @return the bytes of the file
/// @throws Error_Ejecucion 53 when it isn't there, 75 when it is a folder, 70 without permission,
///         57 when the device fails
QByteArray Leer(const QString& ruta);

/// Lines of a text file in the page, without their ends (CR LF or LF); behind the last end there is
/// no line. @throws Error_Ejecucion as `Leer`
QStringList Leer_Lineas(const QString& ruta);

/// Writes `bytes` beside `ruta` and takes the place of `ruta` with them.
/// @throws Error_Ejecucion 52 for an empty name, 76 when the folder isn't there, 75 when `ruta` is
///         no ordinary file, 70 without permission, 61 on a full disk, 57 when the device fails
///         otherwise
void Escribir(const QString& ruta, const QByteArray& bytes);

/// The one test of what a file is written over, for every writer: nothing, or an ordinary file.
/// @throws Error_Ejecucion 75 when a folder, a device, a pipe or a socket stands there
void Comprobar_Destino(const QString& ruta);

/// Copies a file of any size; `destino` appears whole or stays as it was.
/// @throws Error_Ejecucion as `Leer` for the one and `Escribir` for the other
void Copiar(const QString& origen, const QString& destino);

/// The failure that `fichero` reports, with the reason the system gave.
Error_Ejecucion Error_De(const QFileDevice& fichero);

} // namespace Ficheros
