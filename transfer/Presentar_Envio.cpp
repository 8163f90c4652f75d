#include "transfer/Presentar_Envio.h"

#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "transfer/enlace/Envio.h"
#include "transfer/Peticiones_Transfer.h"

void Presentar_Envio(const Datos_Envio& datos, int operacion, bool recuerda)
{
    const Peticiones_Transfer& pide = Peticiones_De_Transfer();
    if (recuerda && Ayuda_Recuerde) pide.Mostrar_Recordatorio();
    Paso_Ayuda = 1;
    if (Ayuda_Visible) pide.Mostrar_Pasos("C", QString::number(operacion));
    Abrir_Envio(datos);
}

void Abrir_Envio(const Datos_Envio& datos)
{
    if (Reclamar_La_En_Curso()) return;
    const Peticiones_Transfer& pide = Peticiones_De_Transfer();
    Envio* const envio = pide.Dialogo_Envio();
    if (!envio) return;
    envio->Preparar(datos.cabecera, datos.datos);
    envio->Inicia_Envio(datos.tipo);
    pide.Mostrar_Envio();
}
