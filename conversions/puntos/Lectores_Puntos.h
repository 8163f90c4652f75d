#pragma once

#include "conversions/puntos/Modelo_Puntos.h"
#include "conversions/suelo/Texto_Fuente.h"

/// Readers of point files. They are drawn in docs/formas/ficheros-de-puntos.md.
namespace Lectores_Puntos {

/// Lines "name x y z [code ...]", separated by blanks and tabs; all words behind z are the code. A
/// line that begins with "*", ";" or "#" and is no point is a comment.
/// @throws Fallo_Conversion for a line of fewer than four fields, a coordinate that is no number, a
///         name with a comma (it would move the coordinates of the target), a text without points
Puntos Blancos(Texto_Fuente& fuente, Informe_Lectura& informe);

/// Points for the level: "name height", "name height code" or "name x y height code", the fields
/// separated by ";" or "," if the line has one, else by blanks. Points that the level can't hold
/// are left out: a name that is empty or longer than 8 characters, a character outside 32 to 126 or
/// a comma in name or code, a height that is no number or reaches 10000 m.
/// @throws Fallo_Conversion when no point is left
Puntos Nivel(Texto_Fuente& fuente, Informe_Lectura& informe);

} // namespace Lectores_Puntos
