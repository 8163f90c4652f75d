#pragma once

#include <QString>

/// "*.lea", raw offsets: a line "S" a station and a line "P" (a point with a number) or "E" (with a
/// name) an observation, with an offset worked out from the distance and the vertical angle.
/// @return as `Exportar_Disposicion`
bool Exportar_Desplazamientos(qint64 id, const QString& ruta);
