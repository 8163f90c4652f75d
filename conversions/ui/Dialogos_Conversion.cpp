#include "conversions/ui/Dialogos_Conversion.h"

#include "conversions/biblioteca/Peticiones_Conversion.h"
#include "conversions/ui/EjeLandxml.h"
#include "conversions/ui/frmConvEst.h"
#include "conversions/ui/frmRobotizada.h"
#include "core/Error_Ejecucion.h"
#include "core/Interfaz.h"
#include "core/ui/Dialogos.h"

namespace {

// The dialog reads its list when it is loaded, so none is kept from one file to the next.
Eleccion_LandXML Elegir_De_Lista()
{
    if (EjeLandxml* const viejo = Dialogos::Cargado<EjeLandxml>()) viejo->Descargar();
    const QPointer<EjeLandxml> frm(&Dialogos::Unico<EjeLandxml>());
    frm->Mostrar_Modal();
    if (!frm) return {};
    Eleccion_LandXML eleccion{frm->Indice, frm->Texto};
    frm->Descargar();
    return eleccion;
}

} // namespace

void Conectar_Dialogos_Conversion()
{
    Peticiones_De_Conversion().Elegir_De_Lista = Elegir_De_Lista;
}

void Mostrar_frmConvEst(int modo)
{
    auto& frm = Dialogos::Unico<frmConvEst>();
    frm.Poner_Modo(modo);
    frm.Mostrar();
}

void Mostrar_frmRobotizada()
{
    try {
        if (frmRobotizada* const abierta = Dialogos::Cargado<frmRobotizada>())
            abierta->Mostrar();
        else
            Dialogos::Unico<frmRobotizada>().Abrir();
    } catch (...) {
        Informe_Error("Se produjo un error al abrir la monitorización", Error_En_Curso());
    }
}
