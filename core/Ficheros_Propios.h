#pragma once

#include <QString>
#include <QStringList>

/// Keeps what the program lives on from being written over by what it makes.

/// @return true for a file of the program's own below the install directory: database and its
///         copies, templates, settings
bool Es_Fichero_Propio(const QString& ruta);

/// To be called before a file is made. @param fuentes  what it is made of
/// @throws Error_Ejecucion 70 when `destino` is a file of the program's own or one of its sources,
///         by whatever path they are named
void Comprobar_Destino(const QString& destino, const QStringList& fuentes = {});
