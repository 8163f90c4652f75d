#pragma once

#include "export/Formatear_Datos.h"

/// The export engine: stage 1 makes rows of a session, stage 2 is the writer of the chosen kind.

/// `Campos_Exportar` up to its first empty slot.
QStringList Cargar_Campos_Exportar();

/// The one entry of the engine: formats the session and writes it. An error of stage 1 is reported.
/// @param tipo  kind of a row of `Salidas_Exportar`, whatever its case
/// @param formato  format's name, for the outputs that read the format themselves
/// @return true when the writer finished; false at once for a kind that can't be written
bool Exportar_Sesion(qint64 id, const QString& maquina, int ope, const QString& tipo,
                     const QString& formato, const QString& fichero,
                     const Opciones_Exportar& opciones, Avance_Exportar& avance);
