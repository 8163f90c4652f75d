#include "export/ui/Dialogos_Exportar.h"

#include "core/ModEstTotal.h"
#include "core/ui/Dialogos.h"
#include "export/Peticiones_Exportar.h"
#include "export/ui/FrmDXF.h"
#include "export/ui/FrmExportar.h"
#include "export/ui/FrmImpDat.h"
#include "export/ui/FrmImpEdtCol.h"
#include "export/ui/FrmImpFormato.h"
#include "export/ui/FrmPlano.h"
#include "export/ui/Impresora.h"
#include "export/ui/Pintor_Pagina.h"
#include "session/ui/frmDescargas.h"

void Conectar_Dialogos_Exportar()
{
    Peticiones_De_Formatos().Abrir_Exportar = [](const Trabajo_Exportar& trabajo) {
        Dialogos::Unico<FrmExportar>().Mostrar_Con(trabajo);
    };
    Peticiones_De_Formatos().Abrir_Imprimir = [](const Trabajo_Exportar& trabajo) {
        Dialogos::Unico<FrmImpFormato>().Mostrar_Con(trabajo);
    };
    Peticiones_De_Impresion() = {
        .Pedir_Trabajo = Pedir_Trabajo,
        .Editar_Columnas = Editar_Columnas,
        .Hay_Impresora = Hay_Impresora,
        .Imprimir = Imprimir_En_Papel,
        .Guardar_PDF = Guardar_PDF,
    };
    Peticiones_De_Exportar().Mostrar_DXF = [](const Origen_Dibujo& origen) {
        Dialogos::Unico<FrmDXF>().Mostrar_Con(origen);
    };
    Puertas_De_Descargas().Ver_Plano = [](const Sesion_Elegida& sesion) {
        if (Comprobar_Hay_Registros(*Base_Datos, sesion.id))
            Dialogos::Unico<FrmPlano>().Ver(sesion);
    };
    Peticiones_De_Exportar().Abrir_DXF = [](const Trabajo_Exportar& trabajo) {
        Peticiones_De_Exportar().Mostrar_DXF(Dibujo_De_Sesion(trabajo));
    };
}
