#pragma once

#include "conversions/biblioteca/Caminos.h"

#include <optional>

/// Road designs of other packages turned into the instrument's text: the choosing, converting and
/// saving. Who sends the text reads it from the file that comes out.

/// Asks for a design, converts it and tells what went wrong.
/// @param filtro  of the file dialog: "descripción|patrón" pairs joined by "|". The source's
///                extension picks the function, or the chosen pattern where the class says so.
/// @param Guardar  1: the result is saved under a name that the user gives, and Cancel ends
///                 silently; else it goes to the temporary file, which stays behind, and the file
///                 dialog asks until a name comes
/// @param operacion  its description heads the file dialog
/// @return where the converted text stands; nothing when the user chose none, or after a failure,
///         which a box has told
std::optional<QString> Convertir_Diseno(Clase_Conversion clase, const QString& filtro, int Guardar,
                                        int operacion);

/// A file of another package, or of points, to the instrument's form under a name that the user
/// gives; nothing is sent.
void Convertir_A_Estandar(Clase_Conversion clase);
