#pragma once

#include "transfer/enlace/Recepcion.h"

/// Has a finished reception stored by the series of its family, then compacts the database and
/// tells the lists of sessions. An operation that its series doesn't store changes nothing. Stored
/// is what can be read again afterwards.
/// @throws Error_Ejecucion 91 when no database is open
Resultado_Recepcion Procesar_Recepcion(const Datos_Recepcion& datos);
