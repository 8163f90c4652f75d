#pragma once

#include <QString>

/// The stored lines of a session as they are, one a line, in their sequence: the level's raw file.
/// A session without lines makes no file. A failure is reported.
/// @return true unless it failed
bool Exportar_Datos(qint64 id, const QString& ruta);

/// The same for series B, with a report of its own.
/// @param modo  nothing is written unless it is 1
bool Exportar_Datos_Modo(qint64 id, const QString& ruta, int modo);

/// The lines of a session into a file, none for a session without lines.
/// @throws Error_Ejecucion as `Fichero_Destino`
void Copiar_Lineas(qint64 id, const QString& ruta);
