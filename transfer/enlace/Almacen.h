#pragma once

#include "transfer/enlace/Recepcion.h"

/// Cuts a text to what its column of `Registros` or `Sesiones` takes, so that one that is too wide
/// never blocks what follows it. @return true when something was cut
bool Cortar_A_Columna(QString& texto, const QString& tabla, const QString& columna);

/// Makes the session of a reception, its name cut to its column and counted so in `resultado`, to
/// which its number is added.
/// @return its number
/// @throws Error_Ejecucion why it could not be made
qint64 Abrir_Sesion(QString nombre, const Datos_Recepcion& datos, Resultado_Recepcion& resultado);
