#include "session/ui/Dialogos_Sesion.h"

#include "core/ui/Dialogos.h"
#include "session/Peticiones_Sesion.h"
#include "session/ui/FrmErrCoord.h"
#include "session/ui/FrmOffset.h"
#include "session/ui/FrmSelSep.h"

void Conectar_Dialogos_Sesion()
{
    Peticiones_Sesion& pide = Peticiones_De_Sesion();
    pide.Pedir_Separador = Pedir_Separador;
    pide.Pedir_Desplazamientos = Pedir_Desplazamientos;
    pide.Mostrar_Puntos_Malos = [](const QString& lista) {
        auto& frm = Dialogos::Unico<FrmErrCoord>();
        frm.Cargar_Datos(lista);
        frm.Mostrar_Modal();
    };
}
