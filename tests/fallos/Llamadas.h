#pragma once

#include <QString>

/// The system calls of this test program: it stands between the libraries and the system, counts
/// what is done to the files below one folder, and lets the n-th call fail.
namespace Llamadas {

enum Clase : unsigned { ABRIR = 1, ESCRIBIR = 2, SINCRONIZAR = 4, RENOMBRAR = 8 };

/// @param clases   which calls count (`Clase`, joined)
/// @param n        the call that fails, from 1; 0 for none
/// @param error    what it fails with (ENOSPC, ...)
/// @param seguidas all that follow it fail as well, as on a disk that stays full
void Armar(const QString& carpeta, unsigned clases, int n, int error, bool seguidas);
/// All calls succeed again. @return how many have been counted
int Desarmar();

} // namespace Llamadas
