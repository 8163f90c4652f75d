#include "core/Sesiones.h"

#include "core/Copias.h"
#include "core/jet/Compactacion.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Reloj.h"
#include "core/Sucesos.h"

#include <limits>
#include <QFile>

namespace {

constexpr qint64 MAXIMA_SESION = std::numeric_limits<qint16>::max();

Base& Base_Abierta()
{
    if (!Base_Datos) throw Error_Ejecucion(91);
    return *Base_Datos;
}

} // namespace

QString Nueva_Sesion(const QString& nombre, int ope)
{
    return Nueva_Sesion(nombre, ope, Clave_Estacion, Nombre_Estacion);
}

QString Nueva_Sesion(const QString& nombre, int ope, const QString& maquina, const QString& maqdes)
{
    try {
        // Taken, cleared and filled in one: another program that stores waits for it, and neither
        // takes the other's number or clears its lines.
        Transaccion transaccion(Base_Abierta());
        const int id = Siguiente_ID();
        // Lines that a failed deletion left behind are no part of the new session.
        Base_Abierta().Execute("DELETE FROM Registros WHERE ID = ?", {id});
        Conjunto_Registros sesiones = Base_Abierta().OpenRecordset("Sesiones");
        sesiones.AddNew();
        sesiones.Poner("ID", id);
        sesiones.Poner("Fecha", Reloj_Actual().Ahora());
        sesiones.Poner("NFichero", nombre);
        sesiones.Poner("OPE", ope);
        sesiones.Poner("Maquina", maquina);
        sesiones.Poner("MaqDes", maqdes);
        sesiones.Update();
        transaccion.Confirmar();
        return QString::number(id);
    } catch (...) {
        Anotar_Fallo("Nueva_Sesion");
        return {};
    }
}

QString Ultima_Sesion()
{
    Conjunto_Registros sesiones = Base_Abierta().OpenRecordset("Sesiones");
    if (sesiones.Es_EOF()) return {};
    sesiones.MoveLast();
    return sesiones.Texto("ID");
}

int Siguiente_ID()
{
    const qint64 ultima = Ultima_Sesion().toLongLong();
    if (ultima >= MAXIMA_SESION) throw Error_Ejecucion(6);
    return int(ultima) + 1;
}

void Poner_NPuntos(Base& base, qint64 id, qint64 puntos)
{
    Conjunto_Registros sesiones = base.OpenRecordset("Sesiones");
    sesiones.Index("PrimaryKey");
    sesiones.Seek({id});
    if (sesiones.NoMatch()) return;
    sesiones.Edit();
    sesiones.Poner("NPuntos", puntos);
    sesiones.Update();
}

void Eliminar_Sesion(qint64 id)
{
    Base& base = Base_Abierta();
    Transaccion t(base);
    base.Execute("DELETE FROM Sesiones WHERE ID = ?", {id});
    base.Execute("DELETE FROM Registros WHERE ID = ?", {id});
    t.Confirmar();
    Q_EMIT Sucesos::Unico().sesiones_cambiadas();
}

Resultado_Compactacion Compactar_BD()
{
    const QString compactada = Ruta_MDB + QStringLiteral("/esttotal.pak");
    Resultado_Compactacion r;
    const auto fallida = [&r] {
        const Error_Ejecucion error = Error_En_Curso();
        Anotar_Fallo("Compactar_BD");
        // Damage found by either step is what counts.
        if (!r.Danada()) r = {false, error.numero, error.descripcion};
    };
    try {
        Compactacion c(Fichero_MDB);
        if (Base_Datos) Base_Datos->Close();
        Base_Datos.reset();
        QFile::remove(compactada);
        c.Escribir(compactada);
        Copias::Guardar(compactada);
        c.Sustituir(compactada);
        r.hecha = true;
    } catch (...) {
        fallida();
        QFile::remove(compactada);
    }
    try {
        Base_Datos = Base::Abrir(Fichero_MDB);
    } catch (...) {
        fallida();
    }
    Q_EMIT Sucesos::Unico().base_reabierta();
    return r;
}
