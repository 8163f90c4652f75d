#pragma once

// The form: docs/formas/ficheros-brutos.md

#include "rawfiles/Registros_Serie_A.h"

/// How the records of series A stand in a file.
enum class Forma_Bruta {
    Maquina = 1, ///< one line: each record behind a "_", and one more "_" at the end
    Lineas = 2,  ///< a line each
};

/// What a raw file of series A doesn't bring back.
struct Falta_En_Bruto {
    Generales_Omitidos generales;
    /// Records that hold what separates the file's records: they would be read back in pieces.
    qint64 partidos = 0;
};

/// A KRT300 or PX7 session as a raw file, grouped by point. A session without lines makes no file,
/// which the machine form says in a box. A failure is reported.
/// @param generales  the general records too
/// @param falta  receives what the file lacks
/// @return true unless it failed
bool Exportar_Puntos(qint64 id, const QString& ruta, Forma_Bruta forma, bool generales,
                     Falta_En_Bruto& falta);

/// The same in words; empty when the file lacks nothing.
QString Texto_Falta(const Falta_En_Bruto& falta, const QString& maquina);
