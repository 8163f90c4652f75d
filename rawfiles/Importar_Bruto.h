#pragma once

#include "rawfiles/Exportar_Puntos.h"

/// The imports: a file becomes a session of the family and model in force, as if its lines had come
/// over the wire. Each shows its closing box, or a report of its failure.

/// What an import made.
struct Importacion {
    QString sesion;        ///< number of the session; empty when none was made
    bool completa = false; ///< all went well
};

/// A KRT300 or PX7 file, through the storing of a download. What doesn't fit its column is cut, and
/// what the store has no place for is left out; both are told.
Importacion Importar_Bruto(const QString& fichero, const QString& nombre, int ope,
                           Forma_Bruta forma);

/// A level file: every line a row, all or none. When one doesn't fit, the report names it and the
/// session stays without lines.
Importacion Importar_Nivel(const QString& fichero, const QString& nombre);

/// The same for a KRT800, the point of each line of operation 4 being its first field.
Importacion Importar_KRT800(const QString& fichero, const QString& nombre, int ope);
