#pragma once

#include <QFileDevice>
#include <QString>

/// The only unit (besides the simulator) that calls the operating system directly.
namespace plataforma {

/// Waits until what was written to an open file lies on the disk.
/// @return false when the system refuses; nothing else is lost by that
bool Sincronizar(QFileDevice& fichero);

/// Puts a file in the place of another in one step: a crash leaves either the old or the new one.
/// @return false when it can't be done; both files then stay
bool Reemplazar(const QString& nuevo, const QString& viejo);

/// Makes names that were created, renamed or removed in `carpeta` outlive a power cut.
bool Sincronizar_Carpeta(const QString& carpeta);

/// @param descriptor  of an open serial device
/// @return true when its other end has gone and nothing is left to read
bool Puerto_Colgado(qintptr descriptor);

} // namespace plataforma
