#pragma once

#include "core/Error_Ejecucion.h"

/// @return the number of the failure that `accion` ends in, or 0 when it doesn't
template <class Accion> int Numero_De_Error(Accion accion)
{
    try {
        accion();
    } catch (const Error_Ejecucion& e) {
        return e.numero;
    }
    return 0;
}
