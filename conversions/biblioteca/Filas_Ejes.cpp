#include "conversions/biblioteca/Conversion.h"
#include "conversions/ejes/Lectores_Eje.h"
#include "conversions/instrumento/Escritor_Instrumento.h"
#include "conversions/landxml/Escritor_LandXML.h"

namespace {

using Conversion::Omisiones;

template <Lector_Eje PROPIO>
constexpr Cuerpo_Funcion AL_INSTRUMENTO =
    Conversion::Fichero<Leer_Eje<PROPIO>, Escribir_Eje_Instrumento, Omisiones::Dan_Menos_Uno>;

template <Lector_Eje PROPIO>
constexpr Cuerpo_Funcion A_LANDXML =
    Conversion::Fichero<Leer_Eje<PROPIO>, Escribir_LandXML_Ahora<Eje>, Omisiones::Dan_Menos_Uno>;

} // namespace

std::vector<Funcion> Filas_Ejes()
{
    constexpr const char* CON_APP = "ENTRADA SALIDA [APLICACION]";
    constexpr const char* DOS = "ENTRADA SALIDA";
    return {
        {"aclipplt2krt", CON_APP, AL_INSTRUMENTO<Leer_Eje_Plt>},
        {"aqtr2krt", CON_APP, AL_INSTRUMENTO<Leer_Eje_Qsv>},
        {"aistram2krt", CON_APP, AL_INSTRUMENTO<Leer_Eje_Istram>},
        {"aistramList2krt", CON_APP, AL_INSTRUMENTO<Leer_Eje_Istram>},
        {"ahtrazado2krt", CON_APP, AL_INSTRUMENTO<Leer_Eje_Htrazado>},
        {"amxroad2krt", CON_APP, AL_INSTRUMENTO<Leer_Eje_Mxroad>},
        {"aispol2krt", CON_APP, AL_INSTRUMENTO<Leer_Eje_Ispol>},
        {"aQSV2LandXML", DOS, A_LANDXML<Leer_Eje_Qsv>},
        {"aclipplt2LandXML", DOS, A_LANDXML<Leer_Eje_Plt>},
        {"aistram2LandXML", DOS, A_LANDXML<Leer_Eje_Istram>},
        {"aistramList2LandXML", DOS, A_LANDXML<Leer_Eje_Istram>},
        {"aispol2LandXML", DOS, A_LANDXML<Leer_Eje_Ispol>},
    };
}
