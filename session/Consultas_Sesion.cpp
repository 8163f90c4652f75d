#include "session/Consultas_Sesion.h"

#include "core/Estado_Global.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "core/Texto_SQL.h"
#include "session/Identificador.h"

bool Tipo_Ficheros_Puntos = false;
[[maybe_unused]] static const bool anotado = Estado_Global::Anotar(Tipo_Ficheros_Puntos);

bool Es_Fichero_De_Puntos(const QString& wope)
{
    return QStringList{"PUNTOS", "DXF", "DATOS DE COORDENADAS", "DATOS DE MEDICIÓN"}.contains(
        wope.toUpper());
}

QString SQL_Sesiones(const QString& maquina)
{
    return "SELECT Id,Sesiones.Ope as nOpe,Ope.Desope as "
           "wOpe,Nfichero,NPuntos,Fecha,Maquina,MaqDes "
           "FROM Sesiones,OPE WHERE Maquina = '" +
           Doblar(maquina) + "' AND OPE.Ope = Sesiones.OPE ORDER BY Id DESC";
}

const QList<Columna_Sesion>& Columnas_Sesion()
{
    static const QList<Columna_Sesion> columnas = {
        {"Id Sesión", "Id", ""},
        {"Fecha", "Fecha", "DD/MM/YYYY"},
        {"Hora", "Fecha", "HH:MM:SS"},
        {"Tipo Fichero", "wOpe", ""},
        {"Nombre de Sesión", "Nfichero", ""},
        {"Aparato", "MaqDes", ""},
        {"Nº Puntos", "NPuntos", "General Number"},
    };
    return columnas;
}

QString Texto_Celda(const Columna_Sesion& columna, const QVariant& valor)
{
    if (columna.campo != u"Fecha") return valor.toString();
    const QDateTime fecha = QDateTime::fromString(valor.toString(), "yyyy-MM-dd HH:mm:ss");
    return fecha.isValid() ? Basico::Formato_Fecha(fecha, columna.dibujo) : valor.toString();
}

std::optional<Sesion_Elegida> Sesion_De_Fila(const Conjunto_Registros& sesiones)
{
    if (sesiones.Es_EOF() || sesiones.Es_BOF()) return std::nullopt;
    return Sesion_Elegida{sesiones.Entero("Id"), sesiones.Texto("Maquina"),
                          int(sesiones.Entero("nOpe")), sesiones.Texto("wOpe")};
}

std::optional<Sesion_Elegida> Buscar_Sesion(Base& bd, qint64 id)
{
    Conjunto_Registros sesiones = bd.OpenRecordset("Sesiones");
    sesiones.Index("PrimaryKey");
    sesiones.Seek({id});
    if (sesiones.NoMatch()) return std::nullopt;
    Sesion_Elegida sesion{id, sesiones.Texto("Maquina"), int(sesiones.Entero("OPE")), {}};

    Conjunto_Registros operaciones = bd.OpenRecordset("OPE");
    operaciones.Index("PrimaryKey");
    operaciones.Seek({sesion.ope});
    if (!operaciones.NoMatch()) sesion.wope = operaciones.Texto("DESOPE");
    return sesion;
}

QString SQL_Registros(qint64 id)
{
    return "SELECT Punto,datos,secuencia FROM registros WHERE id= " + QString::number(id);
}

// Asked so, the first row answers, in whatever order.
static bool Da_Filas(Base& bd, const QString& sql)
{
    Recorrido existe = bd.Recorrer("SELECT EXISTS(" + sql + ')');
    return existe.Siguiente() && existe.Entero(0) != 0;
}

bool Comprobar_Hay_Registros(Base& bd, qint64 id)
{
    if (Da_Filas(bd, SQL_Registros(id))) return true;
    Interfaz_Actual().Mensaje(QString::fromUtf16(SIN_DATOS));
    return false;
}

Vista_Datos Preparar_Vista(const Sesion_Elegida& sesion)
{
    const QString id = QString::number(sesion.id);
    const Familia& familia = Familia_De(sesion.maquina);
    const Operacion operacion{sesion.ope};
    Vista_Datos vista;
    if (!Con_Descripcion(sesion))
        vista.sql =
            "SELECT '' as Descr,Punto,Datos,DatosG FROM Registros WHERE Registros.id=" + id +
            " ORDER BY Secuencia";
    else
        vista.sql = "SELECT Punto,NomID as Descr,Datos,DatosG FROM Registros,Identificadores WHERE "
                    "Registros.id=" +
                    id + " AND " + Condicion_Descripcion(familia, sesion.ope) +
                    " AND Identificadores.Nombre = '" + Doblar(sesion.maquina) +
                    "' AND Identificadores.OPE = " + QString::number(sesion.ope) +
                    " ORDER BY Secuencia";
    vista.titulo = "Datos de la sesión con id (" + id + ")   (" + sesion.wope + ")";
    vista.columna_punto = operacion == Operacion::Coordenadas || operacion == Operacion::Puntos;
    vista.columna_descr = operacion != Operacion::Trabajo;
    return vista;
}

// The jobs of series B are any lines, which no row of `Identificadores` describes.
bool Con_Descripcion(const Sesion_Elegida& sesion)
{
    return Familia_De(sesion.maquina).serie != Serie::B ||
           Operacion(sesion.ope) != Operacion::Trabajo;
}

std::optional<QString> Descripcion_De(Base& bd, const Sesion_Elegida& sesion, const QString& id)
{
    Recorrido clases =
        bd.Recorrer("SELECT Id,NomID FROM Identificadores WHERE Nombre = ? AND OPE = ?",
                    {sesion.maquina, sesion.ope});
    const Serie serie = Familia_De(sesion.maquina).serie;
    while (clases.Siguiente()) {
        const QString clase = clases.Texto(0);
        if ((serie == Serie::B ? Basico::Trim(clase) : clase.left(1)) == id) return clases.Texto(1);
    }
    return std::nullopt;
}

std::optional<Vista_Datos> Ver_Datos(Base& bd, const std::optional<Sesion_Elegida>& sesion)
{
    const Cursor_De_Espera espera;
    if (!sesion) {
        Interfaz_Actual().Pitar();
        return std::nullopt;
    }
    try {
        Vista_Datos vista = Preparar_Vista(*sesion);
        if (Da_Filas(bd, vista.sql)) return vista;
        Interfaz_Actual().Mensaje(QString::fromUtf16(SIN_DATOS));
    } catch (...) {
        Informe_Error("Se produjo un error al leer los datos de la sesión", Error_En_Curso());
    }
    return std::nullopt;
}

QList<Linea_Rejilla> Datos_Generales(Base& bd, const Sesion_Elegida& sesion, const QString& datosg)
{
    QList<Linea_Rejilla> lineas;
    const bool con_nombre = Familia_De(sesion.maquina).serie == Serie::B;
    Conjunto_Registros identificadores = bd.OpenRecordset("Identificadores");
    identificadores.Index("PrimaryKey");
    for (const QString& pieza : datosg.split(QChar(SEP_LISTA))) {
        const QString registro = Basico::Trim(pieza);
        if (registro.isEmpty()) continue;
        if (con_nombre) {
            lineas.append({Trozo(2, pieza, SEP_CAMPO), Trozo(3, pieza, SEP_CAMPO)});
            continue;
        }
        identificadores.Seek({sesion.maquina, sesion.ope, registro.left(1)});
        lineas.append({identificadores.NoMatch() ? QString() : identificadores.Texto("NomID"),
                       Basico::LTrim(registro.mid(1))});
    }
    return lineas;
}

bool Borrar_Sesion(const std::optional<Sesion_Elegida>& sesion)
{
    if (!sesion) {
        Interfaz_Actual().Pitar();
        return false;
    }
    if (!Interfaz_Actual().Preguntar("Desea Eliminar la Descarga ?", Icono::Pregunta)) return false;
    try {
        Eliminar_Sesion(sesion->id);
    } catch (...) {
        Informe_Error("Se produjo un error al eliminar la sesión", Error_En_Curso());
        return false;
    }
    return true;
}
