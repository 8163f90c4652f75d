#include "transfer/ui/FrmSplash2.h"

#include "core/Interfaz.h"

FrmSplash2::FrmSplash2() : FrmSplash(QStringLiteral("FrmSplash2"))
{
    La_Descarga().Atender_Sin_Boton();
    connect(&La_Descarga(), &Descarga::ocultar, this, &Ventana::Descargar, Qt::QueuedConnection);
}

void FrmSplash2::Al_Descargar()
{
    FrmSplash::Al_Descargar();
    Interfaz_Actual().Mensaje("Descarga Finalizada o Abortada", Icono::Informacion);
}
