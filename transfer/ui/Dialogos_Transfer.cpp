#include "transfer/ui/Dialogos_Transfer.h"

#include "core/ui/Dialogos.h"
#include "core/ui/FrmAyuda.h"
#include "transfer/Peticiones_Transfer.h"
#include "transfer/ui/FrmFic.h"
#include "transfer/ui/FrmIni.h"
#include "transfer/ui/FrmRecuerde.h"
#include "transfer/ui/FrmSplash.h"
#include "transfer/ui/Frmsplash1.h"
#include "transfer/ui/FrmSplash2.h"

void Conectar_Dialogos_Transfer()
{
    Peticiones_Transfer& pide = Peticiones_De_Transfer();
    pide.Ocultar_FrmIni = [] {
        if (FrmIni* const frm = Dialogos::Cargado<FrmIni>()) frm->Ocultar();
    };
    pide.Mostrar_Recordatorio = [] { Dialogos::Unico<FrmRecuerde>().Mostrar_Modal(); };
    pide.Pedir_Nombre_Sesion = Pedir_Nombre_Sesion;
    pide.Mostrar_Pasos = [](const QString& tipo_ope, const QString& ope) {
        Dialogos::Unico<FrmAyuda>().Cargar(tipo_ope, ope);
    };
    pide.Dialogo_Descarga = [] { return &Dialogos::Unico<FrmSplash>().La_Descarga(); };
    pide.Mostrar_Descarga = [] { Dialogos::Unico<FrmSplash>().Mostrar(); };
    pide.Dialogo_Recepcion = [] { return &Dialogos::Unico<FrmSplash2>().La_Descarga(); };
    pide.Mostrar_Recepcion = [] { Dialogos::Unico<FrmSplash2>().Mostrar(); };
    pide.Dialogo_Envio = [] { return &Dialogos::Unico<Frmsplash1>().El_Envio(); };
    pide.Mostrar_Envio = [] {
        const QPointer<Frmsplash1> frm(&Dialogos::Unico<Frmsplash1>());
        frm->Mostrar_Modal();
        if (frm) frm->Descargar();
    };
}
