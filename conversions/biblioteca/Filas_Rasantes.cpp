#include "conversions/biblioteca/Conversion.h"
#include "conversions/instrumento/Escritor_Instrumento.h"
#include "conversions/landxml/Escritor_LandXML.h"
#include "conversions/rasantes/Lectores_Rasante.h"

namespace {

using Conversion::Omisiones;
using Lector_Rasante = Rasante (*)(Texto_Fuente&, Informe_Lectura&);

template <Lector_Rasante LEER>
constexpr Cuerpo_Funcion AL_INSTRUMENTO =
    Conversion::Fichero<LEER, Escribir_Rasante_Instrumento, Omisiones::Dan_Menos_Uno>;

template <Lector_Rasante LEER>
constexpr Cuerpo_Funcion A_LANDXML =
    Conversion::Fichero<LEER, Escribir_LandXML_Ahora<Rasante>, Omisiones::Dan_Menos_Uno>;

} // namespace

std::vector<Funcion> Filas_Rasantes()
{
    constexpr const char* DOS = "ENTRADA SALIDA";
    return {
        {"ristram2krt", DOS, AL_INSTRUMENTO<Leer_Rasante_Istram_O_Alz>},
        {"rqsv2krt", DOS, AL_INSTRUMENTO<Leer_Rasante_Qsv>},
        {"ristram2landxml", DOS, A_LANDXML<Leer_Rasante_Istram_O_Alz>},
        {"rqsv2landxml", DOS, A_LANDXML<Leer_Rasante_Qsv>},
    };
}
