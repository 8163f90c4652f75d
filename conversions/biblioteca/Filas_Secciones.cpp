#include "conversions/biblioteca/Conversion.h"
#include "conversions/instrumento/Escritor_Secciones.h"
#include "conversions/landxml/Escritor_LandXML.h"
#include "conversions/secciones/Lectores_Secciones.h"

using namespace Conversion;
using namespace Lectores_Secciones;

namespace {

template <auto Leer>
constexpr Cuerpo_Funcion A_Ssp = Fichero<Leer, Escritor_Secciones::Ssp, Omisiones::No_Cuentan>;
template <auto Leer>
constexpr Cuerpo_Funcion A_LandXML =
    Fichero<Leer, Escribir_LandXML_Ahora<Secciones>, Omisiones::No_Cuentan>;

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
        {"traclip2landxml", "ENTRADA SALIDA", A_LandXML<Clip_Bloques>},
        {"tracliptrv2landxml", "ENTRADA SALIDA", A_LandXML<Clip_Filas>},
        {"traqsv2landxml", "ENTRADA SALIDA", A_LandXML<Qsv>},
        {"traistram2landxml", "ENTRADA SALIDA", A_LandXML<Por_PK>},
        {"trahtrazado2lamdxml", "ENTRADA SALIDA", A_LandXML<Por_PK>},
    };
}
