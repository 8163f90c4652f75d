#include "transfer/nv400/Subida_Nivel.h"

#include "conversions/biblioteca/Flujo_Conversion.h"
#include "conversions/biblioteca/Tabla_Funciones.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"

namespace {

void Guardar_Copia(const QString& temporal)
{
    const QString filtro = QStringLiteral("Formato Miraldos (*.x)|*.x");
    const auto elegido =
        Interfaz_Actual().Pedir_Fichero({.titulo = QStringLiteral("Guardar como ..."),
                                         .filtro = filtro,
                                         .carpeta = {},
                                         .extension = {},
                                         .guardar = true});
    if (!elegido || elegido->nombre.isEmpty()) return;
    const QString destino = Con_Extension(*elegido, filtro);
    Ficheros::Copiar(temporal, destino);
    Interfaz_Actual().Mensaje(QStringLiteral("Fichero ") + destino + QStringLiteral(" generado."));
}

} // namespace

void Subir_NV400(int)
{
    const auto origen = Pedir_Fichero_Insistiendo(
        {.titulo = QStringLiteral("Datos de coordenada"),
         .filtro = QStringLiteral("ASCII (*.asc)|*.asc|Todos los archivos (*.*)|*.*"),
         .carpeta = {},
         .extension = QStringLiteral("asc")});
    if (!origen) return;
    const QString temporal = En_Instalacion(QStringLiteral("miraldos.$$$"));
    Informe_Lectura informe;
    const int resultado = Ejecutar_Funcion(u"puntos2nivel", {origen->nombre, temporal}, informe);
    if (resultado == 1) {
        try {
            Guardar_Copia(temporal);
        } catch (const Error_Ejecucion& e) {
            Informe_Error(QStringLiteral("La carga de Datos no se pudo realizar"), e);
        }
        return;
    }
    Interfaz_Actual().Mensaje(resultado == 0
                                  ? QStringLiteral("La carga de Datos no se pudo realizar")
                                  : QStringLiteral("Fichero de puntos inválidos"));
    Mostrar_Omisiones(informe);
}
