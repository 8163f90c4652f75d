#pragma once

#include <QString>

/// What was found in a database file.
struct Examen {
    bool es_base = false; ///< a database of this program
    QString defecto;      ///< first fault found, empty when it is sound
    int version = 0;      ///< of its tables
    qint64 sesiones = 0;
    bool Sana() const { return es_base && defecto.isEmpty(); }
};

/// Looks into a database that nobody is using, a backup above all, without changing a byte of it or
/// leaving anything beside it.
/// @param a_fondo  every page as well, and not its sessions alone
Examen Examinar_Base(const QString& fichero, bool a_fondo);

/// Puts the database `nueva` (which goes away) in the place of `fichero`, whatever state that is in.
/// The replaced one, with what its last program left beside it, is copied to `aparte` first. Handles
/// of this process on `fichero` go on with the new one.
/// @throws Error_Ejecucion 3045 when another program holds the file or this one is in the middle of
/// a transaction or a pass, 75 when it can't be replaced; and what copying raises: `fichero` is then
/// as it was
void Cambiar_Base(const QString& fichero, const QString& nueva, const QString& aparte);
