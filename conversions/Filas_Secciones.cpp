#include "conversions/Conversion.h"
#include "conversions/Escritor_Secciones.h"
#include "conversions/Lectores_Secciones.h"

using namespace Conversion;
using namespace Lectores_Secciones;

namespace {

template <auto Leer>
constexpr Operacion A_Ssp = Fichero<Leer, Escritor_Secciones::Ssp, Omisiones::No_Cuentan>;

} // namespace

std::vector<Funcion> Filas_Secciones()
{
    return {
        {"cliptrv2krt", "ENTRADA SALIDA", A_Ssp<Clip_Bloques>},
        {"clip2krt", "ENTRADA SALIDA", A_Ssp<Clip_Filas>},
        {"qtr2krt", "ENTRADA SALIDA", A_Ssp<Qsv>},
        {"istram2krt", "ENTRADA SALIDA", A_Ssp<Por_PK>},
        {"htrazado2krt", "ENTRADA SALIDA", A_Ssp<Por_PK>},
        {"mxroad2krt", "ENTRADA SALIDA", A_Ssp<Mxroad>},
    };
}
