#pragma once

#include <QDateTime>
#include <QString>

/// Creates the trace `nombre` (a file name in LOG) with one empty line; an older one of the same
/// name is replaced. A failure shows its box and the transfer goes on.
void Iniciar_Log(const QString& nombre);
/// Appends one line, opening and closing the file, so that it outlives a crash of the transfer.
void Escribir_Log(const QString& nombre, const QString& texto);
/// "KRT300_ddmmyy_hhmm.LOG" for prefix "KRT300".
QString Nombre_Log(const QString& prefijo, const QDateTime& momento);

/// Run log (LOG/Miraldos.log) for failures on which the program is silent on screen; never fails.
void Anotar(const QString& donde, const QString& texto);
/// Notes the exception under way: to be called inside a `catch (...)`.
void Anotar_Fallo(const QString& donde);
