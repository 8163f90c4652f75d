#include "rawfiles/ui/Dialogos_Brutos.h"

#include "core/ui/Dialogos.h"
#include "rawfiles/ModFBruto.h"
#include "rawfiles/Peticiones_Rawfiles.h"
#include "rawfiles/ui/FrmExpBrut.h"
#include "rawfiles/ui/FrmExpBruto.h"
#include "rawfiles/ui/FrmImpBru.h"
#include "rawfiles/ui/Peticion.h"
#include "session/ui/frmDescargas.h"

namespace {

// The texts of a heading stay for the next book of the same run.
std::optional<QStringList> Pedir_Datos_IGN()
{
    const QPointer<Peticion> frm(&Dialogos::Unico<Peticion>());
    frm->Aceptada = false;
    frm->Mostrar_Modal();
    if (!frm || !frm->Aceptada) return std::nullopt;
    return QStringList{frm->Dato1, frm->Dato2, frm->Dato3, frm->Dato4, frm->Dato5};
}

void Poner_Aviso(const QString& texto)
{
    if (frmDescargas* const frm = Dialogos::Cargado<frmDescargas>()) frm->Poner_Aviso(texto);
}

} // namespace

void Conectar_Dialogos_Brutos()
{
    Peticiones_De_Rawfiles() = {Pedir_Datos_IGN, Poner_Aviso};
    Puertas_Descargas& puertas = Puertas_De_Descargas();
    puertas.Guardar_Bruto = Exportar_Fichero_Bruto;
    puertas.Importar_Bruto = [] { Dialogos::Unico<FrmImpBru>().Mostrar_Modal(); };
    puertas.Exportar_En_Bruto = [](const Sesion_Elegida& sesion) {
        Dialogos::Unico<FrmExpBruto>().Abrir(sesion);
    };
    puertas.Exportar_A_Disco = [](const Sesion_Elegida& sesion) {
        Dialogos::Unico<FrmExpBrut>().Abrir(sesion);
    };
    puertas.Incluir_Generales = Incluir_Generales;
    puertas.Poner_Incluir_Generales = Poner_Incluir_Generales;
}
