#include "transfer/nv400/Almacen_NV400.h"

#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "transfer/enlace/Almacen.h"

namespace {

const QStringList COLUMNAS_TEMP = {"Punto", "Secuencia", "Datos", "DatosG"};

// What a storing that failed left behind goes first: its lines are in the journal of that transfer.
void Apuntar_Lineas(Base& base, const QString& buffer, Resultado_Recepcion& resultado)
{
    Transaccion transaccion(base);
    base.Execute("Delete From Registros_Temp");
    Insercion insercion = base.Preparar_Insercion("Registros_Temp", COLUMNAS_TEMP);
    qint64 i = 0;
    for (const QString& pieza : buffer.split(u'\n')) {
        ++i;
        if (pieza.isEmpty()) continue;
        QString linea = pieza.chopped(1);
        if (Cortar_A_Columna(linea, "Registros", "Datos")) ++resultado.faltas.cortadas;
        insercion.Anadir({QString(), i, linea, QString()});
    }
    transaccion.Confirmar();
}

struct Trabajo {
    QString nombre;
    QStringList lineas;
};

// The staged lines by jobs: a line that begins with "t" closes one. Lines behind the last of them
// are a job that was not closed, and no line at all is a job without lines.
QList<Trabajo> Trabajos(Base& base)
{
    QList<Trabajo> lista;
    bool abierto = false;
    for (Recorrido filas = base.Recorrer("SELECT Datos FROM Registros_Temp"); filas.Siguiente();) {
        const QString linea = filas.Texto(0);
        if (!abierto) lista.append({Nombre_Trabajo(linea), {}});
        lista.last().lineas << linea;
        abierto = !linea.startsWith(u't');
    }
    if (lista.isEmpty()) lista.append(Trabajo());
    return lista;
}

// Makes the session of each job and gives its staged rows the session's number, in `Secuencia`.
void Repartir_Sesiones(Base& base, const Datos_Recepcion& datos, Resultado_Recepcion& resultado)
{
    Resultado_Recepcion hechas;
    Transaccion transaccion(base);
    const QList<Trabajo> trabajos = Trabajos(base);
    base.Execute("Delete From Registros_Temp");
    Insercion insercion = base.Preparar_Insercion("Registros_Temp", COLUMNAS_TEMP);
    for (const Trabajo& trabajo : trabajos) {
        const qint64 id = Abrir_Sesion(trabajo.nombre, datos, hechas);
        QString punto = trabajo.nombre;
        Cortar_A_Columna(punto, "Registros", "Punto");
        for (const QString& linea : trabajo.lineas)
            insercion.Anadir({punto, id, linea, QString()});
    }
    transaccion.Confirmar();
    resultado.sesiones = hechas.sesiones;
    resultado.faltas += hechas.faltas;
}

// @return rows of the session
qint64 Copiar_Sesion(Base& base, const QString& id)
{
    Transaccion transaccion(base);
    QStringList lineas;
    for (Recorrido filas = base.Recorrer(
             QStringLiteral("Select Datos From Registros_Temp Where Secuencia = %1").arg(id));
         filas.Siguiente();)
        lineas << filas.Texto(0);
    Insercion insercion =
        base.Preparar_Insercion("Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    qint64 secuencia = 0;
    for (const QString& linea : lineas)
        insercion.Anadir({id.toLongLong(), ++secuencia, " ", linea, " "});
    // One more than the rows: the end line counts, though it is not stored.
    base.Execute(QStringLiteral("Update Sesiones Set nPuntos = %1 where ID = %2")
                     .arg(secuencia + 1)
                     .arg(id));
    transaccion.Confirmar();
    return secuencia;
}

} // namespace

QString Nombre_Trabajo(const QString& linea)
{
    constexpr qint64 DESDE = 6;
    const qint64 coma = Basico::InStr(DESDE, linea, u",");
    return coma == 0 ? QString() : Basico::Mid(linea, DESDE, coma - DESDE);
}

Resultado_Recepcion Guardar_NV400(const Datos_Recepcion& datos)
{
    Resultado_Recepcion r;
    qint64 apuntadas = 0;
    try {
        Apuntar_Lineas(*Base_Datos, datos.buffer, r);
        apuntadas = Base_Datos->OpenRecordset("Registros_Temp").RecordCount();
        Repartir_Sesiones(*Base_Datos, datos, r);
        for (const QString& id : std::as_const(r.sesiones))
            r.filas += Copiar_Sesion(*Base_Datos, id);
        r.faltas.sin_sesion = apuntadas - r.filas;
        Base_Datos->Execute("Delete From Registros_Temp");
        r.guardada = true;
    } catch (...) {
        r.error = Error_En_Curso();
        r.faltas.sin_sesion = apuntadas - r.filas;
        Informe_Error("Se produjo un error al guardar los datos de Medición", *r.error);
    }
    return r;
}

std::optional<Resultado_Recepcion> Guardar_Descarga_NV400(const Datos_Recepcion& datos)
{
    return Guardar_NV400(datos);
}
