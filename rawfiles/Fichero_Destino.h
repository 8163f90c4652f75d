#pragma once

#include "export/texto/Fichero_Texto.h"

#include <optional>

/// A file that a session is written to, line by line: ended by CR LF, in the page of the wire.
///
/// A failure leaves a new file as far as it got. Where a file stood before, that one stays until the
/// new one is complete, and what was written of it keeps ".parcial" behind its name.
class Fichero_Destino {
public:
    /// @throws Error_Ejecucion 70 for a file of the program's own or one without permission, 53,
    /// 75, 76 as `Fichero_Texto`
    explicit Fichero_Destino(const QString& ruta);

    void Linea(QStringView texto) { fichero->Linea(texto); }
    /// Hands the last bytes over and puts the file in its place.
    /// @throws Error_Ejecucion 61 on a full disk, 57 when the device fails otherwise, 70 when the
    /// old file can't be replaced
    void Terminar();

    /// Writes a file whole. @throws as the others
    static void Escribir(const QString& ruta, const QByteArray& bytes);
    /// @throws Error_Ejecucion 70 when `ruta` is a file of the program's own: the database, its
    ///         template and backups, settings, the program itself
    static void Comprobar(const QString& ruta);
    /// @throws Error_Ejecucion 70 when what is written from `origen` would go over it
    static void Comprobar_Distinto(const QString& origen, const QString& ruta);

private:
    QString ruta, parcial; ///< `parcial` is empty when nothing stood at `ruta`
    std::optional<Fichero_Texto> fichero;
};
