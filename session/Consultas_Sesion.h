#pragma once

#include "core/jet/Base.h"

#include <optional>
#include <QList>
#include <QString>

/// A session as the browser's current row gives it.
struct Sesion_Elegida {
    qint64 id = 0;
    QString maquina; ///< family key at the time of its transfer
    int ope = 0;     ///< operation
    QString wope;    ///< the operation's description
};

/// The box for a session without lines.
inline constexpr char16_t SIN_DATOS[] = u"No hay datos disponibles!!!";

/// Told by the browser before it exports: the session holds points, so that a drawing makes sense.
/// The export dialog sets it anew from the format.
extern bool Tipo_Ficheros_Puntos;
/// @return true for the operations whose data are points, by their description in any case
bool Es_Fichero_De_Puntos(const QString& wope);

/// The sessions of a family, the newest first: Id, nOpe, wOpe, Nfichero, NPuntos, Fecha, Maquina,
/// MaqDes.
QString SQL_Sesiones(const QString& maquina);
/// A column of the browser's grid: caption, field of that query, picture (empty: as it stands).
struct Columna_Sesion {
    QString titulo, campo, dibujo;
};
const QList<Columna_Sesion>& Columnas_Sesion();
/// A cell of the grid as it is shown. @param valor  value of the column's field
QString Texto_Celda(const Columna_Sesion& columna, const QVariant& valor);

/// The session on the current row of `SQL_Sesiones`; nothing when there is none.
std::optional<Sesion_Elegida> Sesion_De_Fila(const Conjunto_Registros& sesiones);
/// The session of a number; nothing when it doesn't exist.
std::optional<Sesion_Elegida> Buscar_Sesion(Base& bd, qint64 id);

/// The lines of a session, for the routines that walk through them: Punto, datos, secuencia.
QString SQL_Registros(qint64 id);
/// @return false, the box shown, when the session has no lines
bool Comprobar_Hay_Registros(Base& bd, qint64 id);

/// What `FrmDatos` shows of a session.
struct Vista_Datos {
    QString sql; ///< Punto, Descr, Datos, DatosG
    QString titulo;
    bool columna_punto = false, columna_descr = false; ///< visible
};
Vista_Datos Preparar_Vista(const Sesion_Elegida& sesion);
/// @return false for the sessions whose lines have no kinds: all of them are listed, without words
bool Con_Descripcion(const Sesion_Elegida& sesion);
/// The words of a kind, as that query joins them to a line. @param id  as `Id_Del_Visor` reads it
/// @return nothing when the session's operation doesn't have the kind: its lines aren't listed
std::optional<QString> Descripcion_De(Base& bd, const Sesion_Elegida& sesion, const QString& id);
/// Prepares the view for the browser's button: beeps without a session, shows the box for one
/// without lines, reports errors. @return nothing in these cases
std::optional<Vista_Datos> Ver_Datos(Base& bd, const std::optional<Sesion_Elegida>& sesion);

/// A line of a two-column grid.
struct Linea_Rejilla {
    QString campo, valor;
};
/// The general data in force for a line, as the grid below `FrmDatos` lists them.
QList<Linea_Rejilla> Datos_Generales(Base& bd, const Sesion_Elegida& sesion, const QString& datosg);

/// The browser's deletion: beeps without a session, asks, deletes the session and its lines,
/// reports errors. @return true when it was deleted
bool Borrar_Sesion(const std::optional<Sesion_Elegida>& sesion);
