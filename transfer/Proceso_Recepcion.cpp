#include "transfer/Proceso_Recepcion.h"

#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "core/Sucesos.h"
#include "transfer/Series.h"

Resultado_Recepcion Procesar_Recepcion(const Datos_Recepcion& datos)
{
    if (!Base_Datos) throw Error_Ejecucion(91);
    const Serie_En_Linea* const serie = Serie_De(Familia_De(datos.maquina));
    if (!serie) return {};
    const std::optional<Resultado_Recepcion> guardada = serie->guardar(datos);
    if (!guardada) return {};
    Compactar_BD();
    Q_EMIT Sucesos::Unico().sesiones_cambiadas();
    return *guardada;
}
