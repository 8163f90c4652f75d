#pragma once

#include <QString>

/// The file of an export while it is written. A file that stands under its name stays until the new
/// one is whole. What a writer that failed has written stays too: under the name itself when
/// nothing stood there, else under the name with ".parcial" behind it.
class Destino_Exportar {
public:
    /// @throws Error_Ejecucion 75 when a folder, a device or the like stands there, 70 for a file
    ///         that must not be written
    explicit Destino_Exportar(const QString& fichero);

    /// Where to write.
    const QString& Ruta() const { return ruta; }
    /// The file is whole and closed: it takes its place.
    /// @throws Error_Ejecucion 70 when the old one can't be replaced; both then stay
    void Terminar() const;

private:
    QString objetivo;
    QString ruta;
};

/// @return false for a name that is blank or holds a wild card or a control character: never that
///         of a file
bool Es_Nombre_De_Fichero(const QString& ruta);
