#include "transfer/Proceso_Recepcion.h"

#include "core/Copias.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Sesiones.h"
#include "core/Sucesos.h"
#include "transfer/Series.h"

namespace {

// The compaction has written the whole file anew: what counts as stored is what it holds now.
void Comprobar_Guardado(Resultado_Recepcion& r)
{
    try {
        qint64 filas = 0;
        for (const QString& id : std::as_const(r.sesiones)) {
            Recorrido cuenta = Base_Datos->Recorrer(
                "SELECT Count(Datos) FROM Registros WHERE ID = ?", {id.toLongLong()});
            if (cuenta.Siguiente()) filas += cuenta.Entero(0);
        }
        if (filas != r.filas)
            throw Error_Ejecucion(3343, QStringLiteral("La base de datos tiene %1 de los %2 "
                                                       "registros guardados")
                                            .arg(filas)
                                            .arg(r.filas));
    } catch (...) {
        Anotar_Fallo("Procesar_Recepcion");
        r.error = Error_En_Curso();
    }
}

} // namespace

Resultado_Recepcion Procesar_Recepcion(const Datos_Recepcion& datos)
{
    if (!Base_Datos) throw Error_Ejecucion(91);
    const Serie_En_Linea* const serie = Serie_De(Familia_De(datos.maquina));
    if (!serie) return {};
    std::optional<Resultado_Recepcion> resultado = serie->guardar(datos);
    if (!resultado) return {};
    // A library is no session: it leaves the database as large as it was.
    if (Operacion(datos.operacion) == Operacion::Libreria) return *resultado;
    // What a damaged database has taken may not be there the next time it is asked for.
    if (Compactar_BD().Danada()) {
        resultado->guardada = false;
        Copias::Avisar_Base_Danada(QStringLiteral("Lo recibido se conserva"));
    }
    if (resultado->guardada) Comprobar_Guardado(*resultado);
    Q_EMIT Sucesos::Unico().sesiones_cambiadas();
    return *resultado;
}
