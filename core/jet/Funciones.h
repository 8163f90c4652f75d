#pragma once

struct sqlite3;

/// Puts the engine's text functions into a connection: Mid, Left, Right, InStr with and without a
/// start, Val, UCase, LCase, Len and IsNull. They count characters from 1 and give null for null;
/// an argument out of range ends the statement with error 5.
void Registrar_Funciones(sqlite3* base);

/// The text of a function's failure begins so; the classic error number follows.
inline constexpr char MARCA_FUNCION[] = "#error ";
