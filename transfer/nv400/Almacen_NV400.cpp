#include "transfer/nv400/Almacen_NV400.h"

#include "core/ModEstTotal.h"
#include "core/Sesiones.h"

namespace {

void Apuntar_Lineas(Base& base, const QString& buffer)
{
    Insercion insercion =
        base.Preparar_Insercion("Registros_Temp", {"Punto", "Secuencia", "Datos", "DatosG"});
    qint64 i = 0;
    for (const QString& pieza : buffer.split(u'\n')) {
        ++i;
        if (!pieza.isEmpty()) insercion.Anadir({QString(), i, pieza.chopped(1), QString()});
    }
}

struct Reparto {
    int primera = 0, ultima = 0;
    QStringList sesiones;
};

// Gives each staged row the number of its session (in `Secuencia`) and makes the sessions. A line
// that begins with "t" closes a job; the name of the next comes from the line behind it, and
// without one the reading fails, save for a journal: nothing would ever get its lines back.
Reparto Repartir(Base& base, const Datos_Recepcion& datos)
{
    const auto nueva = [&](const QString& nombre) {
        QString id = Nueva_Sesion(nombre, datos.operacion, datos.maquina, datos.maqdes);
        if (id.isEmpty()) throw Error_Ejecucion(6);
        return id;
    };
    Reparto r;
    Transaccion transaccion(base);
    int id = Siguiente_ID();
    r.primera = id;
    QString nombre;
    bool abierto = false;
    Conjunto_Registros filas =
        base.OpenRecordset("SELECT * FROM Registros_Temp", Tipo_Conjunto::Dinamico);
    if (!filas.Es_EOF()) nombre = Nombre_Trabajo(filas.Texto("Datos"));
    while (!filas.Es_EOF()) {
        const bool cierra = filas.Texto("Datos").startsWith(u't');
        if (cierra) r.sesiones << nueva(nombre);
        filas.Edit();
        filas.Poner("Secuencia", id);
        filas.Poner("Punto", nombre);
        filas.Update();
        filas.MoveNext();
        abierto = !cierra;
        if (cierra && datos.rescatada && filas.Es_EOF()) break;
        if (cierra) {
            nombre = Nombre_Trabajo(filas.Texto("Datos"));
            id = Siguiente_ID();
        }
    }
    r.ultima = id;
    if (r.sesiones.isEmpty() || (datos.cortada && abierto)) r.sesiones << nueva(nombre);
    transaccion.Confirmar();
    return r;
}

void Copiar_Sesion(Base& base, int id)
{
    QStringList lineas;
    for (Recorrido filas = base.Recorrer(
             QStringLiteral("Select Datos From Registros_Temp Where Secuencia = %1").arg(id));
         filas.Siguiente();)
        lineas << filas.Texto(0);
    Insercion insercion =
        base.Preparar_Insercion("Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    qint64 secuencia = 0;
    for (const QString& linea : lineas)
        insercion.Anadir({id, ++secuencia, " ", linea, " "});
    // One more than the rows: the end line counts, though it is not stored.
    base.Execute(QStringLiteral("Update Sesiones Set nPuntos = %1 where ID = %2")
                     .arg(secuencia + 1)
                     .arg(id));
}

} // namespace

QString Nombre_Trabajo(const QString& linea)
{
    constexpr qint64 DESDE = 6;
    const qint64 coma = Basico::InStr(DESDE, linea, u",");
    return coma == 0 ? QString() : Basico::Mid(linea, DESDE, coma - DESDE);
}

bool Guardar_NV400(const Datos_Recepcion& datos, QStringList& sesiones)
{
    try {
        {
            Transaccion transaccion(*Base_Datos);
            if (datos.rescatada) Base_Datos->Execute("Delete From Registros_Temp");
            Apuntar_Lineas(*Base_Datos, datos.buffer);
            transaccion.Confirmar();
        }
        const Reparto r = Repartir(*Base_Datos, datos);
        sesiones = r.sesiones;
        // Odd on purpose: lines behind the last "t" are copied under a number that has no session.
        for (int id = r.primera; id <= r.ultima; ++id)
            Copiar_Sesion(*Base_Datos, id);
        Base_Datos->Execute("Delete From Registros_Temp");
        return true;
    } catch (...) {
        Informe_Error("Se produjo un error al guardar los datos de Medición", Error_En_Curso());
        return false;
    }
}

std::optional<Resultado_Recepcion> Guardar_Descarga_NV400(const Datos_Recepcion& datos)
{
    Resultado_Recepcion r;
    r.completa = Guardar_NV400(datos, r.sesiones);
    return r;
}
