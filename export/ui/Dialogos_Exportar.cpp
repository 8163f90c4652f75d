#include "export/ui/Dialogos_Exportar.h"

#include "core/ui/Dialogos.h"
#include "export/ui/FrmExportar.h"
#include "formats/Peticiones_Formatos.h"

void Conectar_Dialogos_Exportar()
{
    Peticiones_De_Formatos().Abrir_Exportar = [](const Trabajo_Exportar& trabajo) {
        Dialogos::Unico<FrmExportar>().Mostrar_Con(trabajo);
    };
}
