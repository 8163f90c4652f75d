#include "export/dxf/Dialogo_ExportDXF.h"

#include "core/ModEstTotal.h"
#include "export/Peticiones_Exportar.h"

#include <QFile>

void Dialogo_ExportDXF::Elegir_Entrada()
{
    const auto elegido = Interfaz_Actual().Pedir_Fichero({.titulo = "Cargar Fichero ...",
                                                          .filtro = "Todos los Archivos (*.*)|*.*",
                                                          .carpeta = En_Instalacion("ficheros")});
    if (elegido && !elegido->nombre.isEmpty()) entrada = elegido->nombre;
}

void Dialogo_ExportDXF::Elegir_Salida()
{
    for (;;) {
        const auto elegido =
            Interfaz_Actual().Pedir_Fichero({.titulo = "Guardar como ...",
                                             .filtro = "Formato Autocad (*.DXF)|*.DXF",
                                             .carpeta = En_Instalacion("ficheros"),
                                             .guardar = true});
        if (!elegido || elegido->nombre.isEmpty()) return;
        if (QFile::exists(elegido->nombre) &&
            !Interfaz_Actual().Preguntar("El fichero ya existe, ¿ Desea reemplazarlo?",
                                         Icono::Exclamacion))
            continue;
        salida = elegido->nombre;
        return;
    }
}

void Dialogo_ExportDXF::Exportar() const
{
    if (entrada.isEmpty() || salida.isEmpty())
        Interfaz_Actual().Pitar();
    else
        Peticiones_De_Exportar().Mostrar_DXF(Dibujo_De_Texto(entrada, salida));
}
