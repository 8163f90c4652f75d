#pragma once

// The form: docs/formas/ficheros-de-puntos.md

/// Upload of points to the level, which takes them from a file of its own form and not over the
/// port: asks for the point file until a name comes, converts it and saves the result under a name
/// that the user gives.
/// @param operacion  any number; the level has one upload
void Subir_NV400(int operacion);
