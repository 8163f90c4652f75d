#include "conversions/Conversion.h"

std::vector<Funcion> Filas_Rasantes()
{
    return {};
}
