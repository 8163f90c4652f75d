#include "conversions/Conversion.h"

std::vector<Funcion> Filas_Puntos()
{
    return {};
}
