#pragma once

#include <QString>

/// Runs the desktop program of an install directory until the user ends it. To be called with the
/// application made. @return the status of the run
int Ejecutar_Programa(const QString& ruta);
