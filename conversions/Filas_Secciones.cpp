#include "conversions/Conversion.h"

std::vector<Funcion> Filas_Secciones()
{
    return {};
}
