#pragma once

#include "core/Familia.h"
#include "rawfiles/Exportar_Puntos.h"

#include <optional>

/// What a file seems to be, from what it holds.
struct Aspecto_Bruto {
    Serie serie = Serie::Ninguna; ///< `Ninguna`: nothing that an instrument writes
    Forma_Bruta forma = Forma_Bruta::Lineas;
    QString defecto; ///< why it is no text of an instrument's page; empty when it is
};

/// Looks at a file's bytes: most of its lines or records tell whose it is.
/// @throws Error_Ejecucion as `Base`: the record kinds stand in the tables
Aspecto_Bruto Reconocer_Bruto(const QByteArray& bytes);

/// What is to be asked before a file is stored as one of `familia`; nothing when it looks as it
/// should, or like nothing in particular.
/// @param forma  series A: the chosen form
/// @param ope  the chosen operation
std::optional<QString> Duda_De_Importar(const QByteArray& bytes, const Familia& familia,
                                        Forma_Bruta forma, int ope);
