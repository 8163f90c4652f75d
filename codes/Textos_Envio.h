#pragma once

// The form: docs/formas/librerias.md

#include "codes/Librerias.h"

/// The texts that an upload of a code library sends.

/// Records of a library of series A: 50 of them, each "_:", the number of three digits, the code
/// and blanks up to 10 characters; codes that are missing count as empty.
/// @param codigos  list joined with code 6, its first item empty
/// @return the empty text when the list holds no code, or a character that the instrument doesn't
///         take: the box has been shown
/// @throws Error_Ejecucion 5 for a code of more than 10 characters
QString Texto_Libreria(const QString& codigos);

/// Lines of a stored library of series B in their order: code, entity and layer separated by
/// commas, each line closed by CR LF.
QString Codigos_KRT800(const QString& libreria);
