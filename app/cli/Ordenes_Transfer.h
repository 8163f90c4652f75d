#pragma once

#include "app/cli/Ordenes.h"

/// Downloads from an instrument; prints the number of each session made.
int Orden_Descargar(const Contexto& c, const QStringList& palabras);
/// Lists the receptions that were left without a session.
int Orden_Rescates(const Contexto& c, const QStringList& palabras);
/// Makes a session of one of them; prints its number.
int Orden_Rescatar(const Contexto& c, const QStringList& palabras);
