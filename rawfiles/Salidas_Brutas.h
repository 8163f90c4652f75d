#pragma once

#include "core/Familia.h"

#include <span>

/// A session on its way to a raw or station file.
struct Tarea_Bruta {
    qint64 id = 0;
    QString maquina; ///< the session's family
    QString patron;  ///< "*.hd6", …: what was chosen
    QString fichero;
    bool generales = false; ///< series A: the general records too
    QString temporal;       ///< the file that one run leaves for another
};

/// One way out: what is done for a pattern, and what is said when it is done. A new layout is one
/// file under estaciones/ and one row here. docs/formas/ficheros-brutos.md draws the files.
struct Salida_Bruta {
    Serie serie;
    QString patron; ///< empty: any that has no row of its own
    /// @param aviso  receives what is to be said behind the closing box
    /// @return false when it failed, which it has said, or was given up
    bool (*escribir)(const Tarea_Bruta&, QString& aviso);
    QString cierre; ///< closing box; empty: the writer has its own
};

/// All ways out; behind those of a series stands the one for any other pattern.
std::span<const Salida_Bruta> Salidas_Brutas();
/// @return the row for a pattern, compared exactly; null for a family that has none
const Salida_Bruta* Salida_Bruta_De(const Familia& familia, const QString& patron);

/// Writes the file, shows the closing box and hands what else is to be said to `Poner_Aviso`.
/// @return false when it failed or was given up
bool Escribir_Bruto(const Tarea_Bruta& tarea);

/// Where the lines wait that one run prepares for another.
QString Temporal_Bruto();
