#pragma once

#include <QString>

/// Turns a file of series B lines into a CARTOMAP file. A station without its coordinates and back
/// point, or a sight without its observation, ends the run with a box; what was written until then
/// is the file.
/// @return false when there is no input or something fails, which is reported
bool Exportar_Cartomap(const QString& entrada, const QString& ruta);
