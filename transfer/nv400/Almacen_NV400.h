#pragma once

// The form: docs/formas/nv400.md

#include "transfer/enlace/Recepcion.h"

#include <optional>

/// Name of the job that a line opens: from position 6 up to the first comma there or further; empty
/// without one.
QString Nombre_Trabajo(const QString& linea);

/// Makes the sessions of an NV400 transfer: a line that begins with "t" closes a job.
/// @param sesiones  receives the numbers of the sessions made, in order
/// @return true when every line is stored
bool Guardar_NV400(const Datos_Recepcion& datos, QStringList& sesiones);

/// Stores a finished download of any operation.
std::optional<Resultado_Recepcion> Guardar_Descarga_NV400(const Datos_Recepcion& datos);
