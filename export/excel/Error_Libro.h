#pragma once

#include "core/Error_Ejecucion.h"

/// What is thrown for a workbook that cannot be understood.
/// @param motivo  what is wrong with it, in a few words
inline Error_Ejecucion Libro_Danado(const QString& motivo)
{
    return Error_Ejecucion(3274, QStringLiteral("El libro está dañado: ") + motivo);
}
