#pragma once

#include "core/jet/Fichas_Sql.h"

/// Refuses what SQLite would take for something else than the program's SQL means by it, instead of
/// failing: "--" and "/*" begin no comment there, "&" joins texts, "+" between texts too, and the
/// functions are those of the engine and no others.
/// @param fuente  the text that was cut into `fichas`
/// @throws Error_Ejecucion 3075 syntax, 3085 unknown function
void Comprobar_Gramatica(const QByteArray& fuente, const std::vector<Ficha_Sql>& fichas);
