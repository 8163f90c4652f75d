#pragma once

#include <memory>
#include <QString>

class Conexion;

/// Holds a database for itself while it is rewritten and replaced: other programs can't open it
/// meanwhile. Handles and recordsets of this process stay, and work on the new file afterwards.
class Compactacion {
public:
    /// @throws Error_Ejecucion 3045 when another program holds the file or this one is in the
    /// middle of a transaction or a pass; and what opening it raises
    explicit Compactacion(const QString& fichero);
    /// Gives the file free again, replaced or not.
    ~Compactacion();
    Compactacion(const Compactacion&) = delete;
    Compactacion& operator=(const Compactacion&) = delete;

    /// Writes the compacted database as the new file `destino` and waits until it lies on the disk.
    /// @throws Error_Ejecucion 3204 when it exists, 3026 on a full disk, 3051 without permission
    void Escribir(const QString& destino);
    /// Puts the file `compactada` in the database's place in one step, so that a crash leaves
    /// either the old one or the new one, and opens it. @throws Error_Ejecucion 75 when it can't be
    /// renamed
    void Sustituir(const QString& compactada);

private:
    void Liberar();

    std::shared_ptr<Conexion> conexion;
};
