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

/// Gives `nuevo` the permissions, the group and, where the system lets us, the owner of `modelo`.
/// @return false when some of it can't be done
bool Copiar_Permisos(const QString& modelo, const QString& nuevo);

/// Kind of file system that a file lies on, in the system's words ("ext4", "nfs4", "cifs"); "red"
/// for a drive of another machine where the system says no more.
QByteArray Sistema_De_Ficheros(const QString& fichero);
/// @return true when memory shared by the programs of several machines can't be had on a file
/// system of that kind, which is what a write-ahead log needs
bool Es_De_Red(const QByteArray& sistema);
/// Puts another answer in place of `Sistema_De_Ficheros` (null: the system's own again).
using Pregunta_Sistema = QByteArray (*)(const QString& fichero);
void Poner_Sistema_De_Ficheros(Pregunta_Sistema pregunta);

/// @param descriptor  of an open serial device
/// @return true when its other end has gone and nothing is left to read
bool Puerto_Colgado(qintptr descriptor);

} // namespace plataforma
