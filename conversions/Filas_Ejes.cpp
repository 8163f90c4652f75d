#include "conversions/Conversion.h"

std::vector<Funcion> Filas_Ejes()
{
    return {};
}
