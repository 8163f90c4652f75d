#pragma once

// The form: docs/formas/access.md

#include <memory>
#include <optional>
#include <QDateTime>
#include <QIODevice>
#include <QString>
#include <QStringList>
#include <span>

/// A text column of a table to be made.
struct Columna_Texto {
    QString nombre{};
    int tamano = 80;          ///< characters at most, 1 to 255
    bool admite_vacio = true; ///< `AllowZeroLength`: the empty text is a value
    bool comprimida = true;   ///< texts of Latin letters take one byte a character
};

/// A value of a row: a text, or nothing (null).
using Celda_Jet = std::optional<QStringView>;

/// How a database is made.
struct Ajustes_Jet {
    /// Only the General order (LANGID=0x0409) of Windows-1252 is written.
    QString localizacion = QStringLiteral(";LANGID=0x0409;CP=1252;COUNTRY=0");
    /// Creation date: days since 30-12-1899, local time. Without one, the clock's.
    std::optional<double> fecha{};
    /// What to do with a file that stands there already. It is touched at `Cerrar` only.
    enum { RECHAZAR, REEMPLAZAR } si_existe = RECHAZAR;
};

/// Writes a Jet 4 database (.mdb of Access 2000 to 2003) from nothing: tables of text columns,
/// filled one after the other. Rows are streamed: memory doesn't grow with their number.
///
/// The file takes its place whole at `Cerrar`, or not at all: without it nothing appears. A table
/// or row that is refused leaves the database as it was, so that a caller who wants what was
/// written up to there closes it all the same. After a failure of the disk nothing can be kept:
/// `Cerrar` gives the failure again.
class Base_Jet {
public:
    /// @throws Error_Ejecucion 3055 for a name that is none, 3044 when the folder isn't there, 3204
    ///         when the file exists (and isn't to be replaced), 75 when it is a folder, 70 without
    ///         permission, 3001 for a locale that isn't written or a date before 1900
    explicit Base_Jet(const QString& fichero, const Ajustes_Jet& ajustes = {});
    /// Into any device that can seek, open for writing and empty. It outlives this object.
    explicit Base_Jet(QIODevice& destino, const Ajustes_Jet& ajustes = {});
    ~Base_Jet();
    Base_Jet(const Base_Jet&) = delete;
    Base_Jet& operator=(const Base_Jet&) = delete;

    /// Adds a table and opens it for rows; the one before it takes no more. Names are compared as
    /// the engine does: capitals and small letters are one, accents count.
    /// @throws Error_Ejecucion 3125 for a name the engine refuses (a table's must also lie within
    ///         Windows-1252, since it is indexed), 3010 when there is a table of that name, 3264
    ///         without columns, 3190 with over 255, 3191 for a column defined twice, 3001 for a
    ///         column size out of bounds, 3014 when the catalogue is full, 3420 when closed
    void Crear_Tabla(const QString& nombre, const QList<Columna_Texto>& columnas);

    /// Appends a row. @param celdas  one text a column; a null `QString` is the empty text
    /// @throws Error_Ejecucion 3163 for a text too long for its column, 3315 for an empty one where
    ///         none is allowed, 3047 when the row is too long for a page, 3265 when there aren't
    ///         as many cells as columns, 3420 without a table or when closed; and those of the
    ///         disk: 3026 when it is full, 3049 beyond 2 GB, 57
    void Anadir_Fila(const QStringList& celdas);
    void Anadir_Fila(std::span<const Celda_Jet> celdas);

    /// Rows of the table that is open.
    qint64 Filas() const;

    /// Finishes the database and puts it in its place.
    /// @throws Error_Ejecucion 3204 when a file has appeared there meanwhile, 3420 when closed,
    ///         and those of the disk as in `Anadir_Fila`
    void Cerrar();

    /// A date as the database counts it.
    static double Fecha(const QDateTime& fecha);

private:
    struct Tabla;
    struct Obra;
    std::unique_ptr<Obra> obra;
};
