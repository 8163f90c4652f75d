#pragma once

#include "app/cli/Ordenes.h"

/// Downloads from an instrument; prints the number of each session made.
int Orden_Descargar(const Contexto& c, const QStringList& palabras);
/// Sends a file to an instrument; prints what was sent, refused and repeated. For the level it writes
/// the file that the instrument reads.
int Orden_Enviar(const Contexto& c, const QStringList& palabras);
QString Uso_Enviar();
/// Lists the receptions that were left without a session.
int Orden_Rescates(const Contexto& c, const QStringList& palabras);
/// Makes a session of one of them; prints its number.
int Orden_Rescatar(const Contexto& c, const QStringList& palabras);
