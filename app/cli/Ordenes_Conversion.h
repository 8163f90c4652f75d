#pragma once

#include "app/cli/Ordenes.h"

/// Calls a function of the converter library by its name; prints its result. What the source held
/// and the target doesn't goes to the messages.
int Orden_Convertidor(const Contexto& c, const QStringList& palabras);
/// Picks the function by the extensions of source and target; prints its name and its result.
int Orden_Convertir(const Contexto& c, const QStringList& palabras);
/// Results of a robotic monitoring campaign, as a text or a workbook.
int Orden_Monitorizar(const Contexto& c, const QStringList& palabras);
