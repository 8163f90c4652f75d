#include "transfer/Proceso_Recepcion.h"

#include "core/Copias.h"
#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "core/Sucesos.h"
#include "transfer/Series.h"

Resultado_Recepcion Procesar_Recepcion(const Datos_Recepcion& datos)
{
    if (!Base_Datos) throw Error_Ejecucion(91);
    const Serie_En_Linea* const serie = Serie_De(Familia_De(datos.maquina));
    if (!serie) return {};
    std::optional<Resultado_Recepcion> guardada = serie->guardar(datos);
    if (!guardada) return {};
    // A library is no session: it leaves the database as large as it was.
    if (Operacion(datos.operacion) == Operacion::Libreria) return *guardada;
    // What a damaged database has taken may not be there the next time it is asked for.
    if (Compactar_BD().Danada()) {
        guardada->completa = false;
        Copias::Avisar_Base_Danada(QStringLiteral("Lo recibido se conserva"));
    }
    Q_EMIT Sucesos::Unico().sesiones_cambiadas();
    return *guardada;
}
