#include "transfer/Proceso_Recepcion.h"

#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "core/Sucesos.h"

namespace {

bool Es_Serie_A(const QString& maquina)
{
    return maquina == u"KRT300" || maquina == u"PX7";
}

Resultado_Recepcion Procesar_Serie_A(const Datos_Recepcion& datos)
{
    Resultado_Recepcion r;
    const QString id = Nueva_Sesion(datos.nombre, datos.operacion, datos.maquina, datos.maqdes);
    if (id.isEmpty()) return r;
    r.sesiones << id;
    r.completa = Guardar_KRT300(datos.buffer, id.toLongLong(), datos.maquina, datos.operacion);
    Contar_Puntos(id.toLongLong());
    return r;
}

} // namespace

Resultado_Recepcion Procesar_Recepcion(const Datos_Recepcion& datos)
{
    if (!Base_Datos) throw Error_Ejecucion(91);
    Resultado_Recepcion r;
    if (Es_Serie_A(datos.maquina)) {
        if (datos.operacion != 0 && datos.operacion != 1 && datos.operacion != 11) return r;
        r = Procesar_Serie_A(datos);
    } else if (datos.maquina == u"KRT800") {
        QString numero;
        r.completa = Guardar_KRT800(datos, numero);
        if (!numero.isEmpty()) r.sesiones << numero;
    } else if (datos.maquina == u"NV400") {
        r.completa = Guardar_NV400(datos, r.sesiones);
    } else {
        return r;
    }
    Compactar_BD();
    Q_EMIT Sucesos::Unico().sesiones_cambiadas();
    return r;
}

void Contar_Puntos(qint64 id)
{
    Recorrido puntos = Base_Datos->Recorrer(
        QStringLiteral("SELECT Distinct Punto FROM Registros WHERE ID = %1").arg(id));
    qint64 n = 0;
    while (puntos.Siguiente()) ++n;
    if (n == 0) Interfaz_Actual().Mensaje("El Fichero no contenía Puntos", Icono::Informacion);
    Conjunto_Registros sesiones = Base_Datos->OpenRecordset("Sesiones");
    sesiones.Index("ID");
    sesiones.Seek({id});
    if (sesiones.NoMatch()) return;
    sesiones.Edit();
    sesiones.Poner("Npuntos", n);
    sesiones.Update();
}
