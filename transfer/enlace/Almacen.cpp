#include "transfer/enlace/Almacen.h"

#include "core/jet/Esquema.h"
#include "core/ModEstTotal.h"
#include "core/Sesiones.h"

namespace {

// A session that could not be made keeps its reason to the run log; what stands in the way (no
// number left, a busy, locked or damaged database) shows itself here again.
Error_Ejecucion Motivo_Sin_Sesion()
{
    try {
        Siguiente_ID();
        Transaccion prueba(*Base_Datos);
        Base_Datos->Execute("DELETE FROM Registros WHERE ID = 0");
    } catch (...) {
        return Error_En_Curso();
    }
    return Error_Ejecucion(
        51, QStringLiteral("No se ha podido crear la sesión; el motivo está en LOG/Miraldos.log"));
}

} // namespace

bool Cortar_A_Columna(QString& texto, const QString& tabla, const QString& columna)
{
    const int ancho = Esquema::Ancho(tabla, columna);
    if (ancho == 0 || texto.size() <= ancho) return false;
    texto.truncate(ancho);
    return true;
}

qint64 Abrir_Sesion(QString nombre, const Datos_Recepcion& datos, Resultado_Recepcion& resultado)
{
    if (Cortar_A_Columna(nombre, QStringLiteral("Sesiones"), QStringLiteral("NFichero")))
        ++resultado.faltas.cortadas;
    const QString id = Nueva_Sesion(nombre, datos.operacion, datos.maquina, datos.maqdes);
    if (id.isEmpty()) throw Motivo_Sin_Sesion();
    resultado.sesiones << id;
    return id.toLongLong();
}
