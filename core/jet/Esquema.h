#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The tables of the program's database, the one description of them: the delivered template is
/// made from it, and recordsets find here the columns of an index.
namespace Esquema {

/// How the program treats a column's value.
enum class Tipo {
    Texto,     ///< text of at most `ancho` characters
    Memo,      ///< text without a limit
    Entero,    ///< whole number
    Entero_16, ///< whole number of 16 bits: beyond 32767 it overflows (error 6)
    Fecha,     ///< text "YYYY-MM-DD HH:MM:SS", local time
};

struct Columna {
    QString nombre;
    Tipo tipo;
    int ancho = 0; ///< characters, for `Texto`
};

/// A named index, for `Index` and `Seek`; its columns are never null, so that rows compare as a
/// whole.
struct Indice {
    QString nombre;
    QStringList columnas; ///< in the order in which `Seek` takes its keys
    bool unico = true;
    bool interno = false; ///< serves queries alone: unknown to `Index`, and null is allowed
};

struct Tabla {
    QString nombre;
    QList<Columna> columnas;
    QList<Indice> indices;
    /// Columns that say which row of a delivered table is which; empty for the user's tables.
    QStringList identidad{};
    int desde = 0; ///< version of the database that brought the table

    /// Column or index by its name, compared without case; null when there is none.
    const Columna* Buscar_Columna(const QString& nombre) const;
    const Indice* Buscar_Indice(const QString& nombre) const;
};

/// All tables, in the order in which they are made.
const QList<Tabla>& Tablas();
/// A table by its name, compared without case; null when there is none.
const Tabla* Buscar_Tabla(const QString& nombre);
/// Version of the tables as they stand here: a database of a lower one is brought up when it is
/// opened, one of a higher one is refused.
inline constexpr int VERSION = 1;
/// SQL that makes one table; its indexes follow.
QStringList Sentencias_De(const Tabla& tabla);
/// SQL that is true for a moment in the stored form, and for nothing else but null.
QString Es_Fecha(const Columna& columna);
/// SQL that makes all tables and indexes in an empty database.
QStringList Sentencias();

/// Mark in the file's header that tells the program's databases from others' for file tools.
inline constexpr qint32 MARCA_FICHERO = 0x4D495241;

/// Names of the width and range checks begin so; errors are told apart by them.
inline constexpr char PREFIJO_ANCHO[] = "ancho_";
inline constexpr char PREFIJO_RANGO[] = "rango_";
inline constexpr char PREFIJO_FECHA[] = "fecha_";

} // namespace Esquema
