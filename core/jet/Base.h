#pragma once

#include <memory>
#include <QDateTime>
#include <QString>
#include <QVariant>

class Base;
class Conexion;

/// What a recordset is opened as. A table recordset is live and seekable; the members of a dynaset
/// or snapshot are fixed when it is opened, and a snapshot can't be edited.
enum class Tipo_Conjunto { Tabla, Dinamico, Instantanea };

/// Rows of a table or query with a current row. Column names are compared without case; a column
/// that stands twice in a query is reached as "KRT2.OPE". A SELECT without an order follows
/// insertion order. Failures are Error_Ejecucion with the engine's numbers: 3021 no current row,
/// 3265 no such column, 3015 no such index, 3163 text longer than its column, 3022 duplicate key,
/// 3020 Update without AddNew or Edit.
class Conjunto_Registros {
public:
    ~Conjunto_Registros();
    Conjunto_Registros(Conjunto_Registros&&) noexcept;
    Conjunto_Registros& operator=(Conjunto_Registros&&) noexcept;

    /// Chooses the index for `Seek` (table recordsets) and the order of the moves; the name is
    /// compared without case. The columns of each index stand in core/jet/Esquema.cpp.
    void Index(const QString& nombre);
    /// Looks for the first row whose leading index columns equal `claves`; `NoMatch` tells.
    /// A text that holds a number equals the number of a numeric column. Without a match there is
    /// no current row. @throws Error_Ejecucion 3019 before `Index`, 3251 on another kind of
    /// recordset
    void Seek(const QVariantList& claves);
    bool NoMatch() const;
    /// Looks for the first row that meets an SQL condition; without a match the row stays.
    /// @throws Error_Ejecucion 3251 on a query of several tables
    void FindFirst(const QString& criterio);

    /// Before the first, behind the last row; both are true for an empty set.
    bool Es_BOF() const;
    bool Es_EOF() const;
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    /// Number of rows; needs no MoveLast before it.
    qint64 RecordCount() const;
    /// Place of the current row from 0, or -1; and going to one.
    qint64 Posicion() const;
    void Ir_A(qint64 posicion);

    /// Value of a column of the current row (or of the row being added or edited).
    QVariant Valor(const QString& campo) const;
    /// The same as text (null as empty text), as a whole number (null and letters as 0).
    QString Texto(const QString& campo) const;
    qint64 Entero(const QString& campo) const;
    /// True for the text "SI": how the store holds a boolean.
    bool Es_Si(const QString& campo) const;
    /// A stored moment; invalid for null.
    QDateTime Momento(const QString& campo) const;
    /// Names of the columns, in the order of the query; a name that stands twice with its table's.
    QStringList Columnas() const;

    void AddNew();
    void Edit();
    /// A boolean is stored as "SI" or "NO", a QDateTime as its text.
    /// @throws Error_Ejecucion 3265 no such column, 3164 a column that can't be written
    void Poner(const QString& campo, const QVariant& valor);
    void Update();
    void CancelUpdate();
    /// Deletes the current row; the position stays before the next one until a move.
    void Delete();

    /// Runs the query again; the current row is the first.
    void Requery();

    /// Table, dynaset or snapshot behind this door.
    class Datos;

private:
    friend class Base;
    explicit Conjunto_Registros(std::unique_ptr<Datos> datos);
    std::unique_ptr<Datos> d;
};

/// One pass through a query, a row at a time, on a prepared statement: for long passes. The views
/// that it hands out hold until the next step.
class Recorrido {
public:
    ~Recorrido();
    Recorrido(Recorrido&&) noexcept;
    Recorrido& operator=(Recorrido&&) noexcept;

    /// Steps to the next row. @return false behind the last
    bool Siguiente();
    /// Values of the row by column number from 0: null is empty text, 0.
    QString Texto(int columna) const;
    /// The same into a text that is used again and again, without claiming memory for each row.
    void Texto(int columna, QString& en) const;
    qint64 Entero(int columna) const;
    bool Es_Nulo(int columna) const;
    /// The column's bytes (UTF-8) without a copy, valid until the next step.
    QByteArrayView Bytes(int columna) const;

private:
    friend class Base;
    struct Datos;
    explicit Recorrido(std::unique_ptr<Datos> datos);
    std::unique_ptr<Datos> d;
};

/// The same statement run many times with new values: for long writes. Values are checked against
/// the column widths like any other (3163).
class Insercion {
public:
    ~Insercion();
    Insercion(Insercion&&) noexcept;
    Insercion& operator=(Insercion&&) noexcept;
    /// Adds one row; `valores` in the order of the columns given to `Base::Preparar_Insercion`.
    void Anadir(const QVariantList& valores);

    /// The same value by value, for the longest loops: columns from 0, those not put keep the value
    /// of the row before.
    void Poner(int columna, QStringView texto);
    void Poner(int columna, qint64 numero);
    void Anadir();

private:
    friend class Base;
    struct Datos;
    explicit Insercion(std::unique_ptr<Datos> datos);
    std::unique_ptr<Datos> d;
};

/// A database handle. All handles of the process on one file share one connection, so that a
/// "second connection" sees what the first wrote and never locks it out.
class Base {
public:
    /// Opens an existing database. @throws Error_Ejecucion 3024 when the file is missing, 3343 when
    /// it is no database or lacks tables, 3051 without permission, 3045 when another program holds
    /// it
    static std::shared_ptr<Base> Abrir(const QString& fichero);
    /// Makes a new, empty database with every table of the program. Used by the build of the
    /// delivered template. @throws Error_Ejecucion 3204 when the file exists
    static std::shared_ptr<Base> Crear(const QString& fichero);
    /// Rewrites `origen` into the new file `destino`, dropping deleted space.
    /// @throws Error_Ejecucion 3045 when another program holds the source or this one is in the
    /// middle of a transaction or a pass, 3204 when `destino` exists
    static void Compactar(const QString& origen, const QString& destino);

    ~Base();
    Base(const Base&) = delete;
    Base& operator=(const Base&) = delete;

    /// @param fuente  table name (table recordset unless `tipo` says otherwise) or SQL text
    Conjunto_Registros OpenRecordset(const QString& fuente);
    Conjunto_Registros OpenRecordset(const QString& fuente, Tipo_Conjunto tipo);
    /// Runs a DELETE, UPDATE or INSERT; `?` in the text take `valores`. @return rows touched
    /// @throws Error_Ejecucion 3065 for a SELECT, 3061 unknown column, 3075 syntax, 3078 unknown
    /// table, 3163, 3022, 3421 letters in a numeric column, 3058 null in an index
    qint64 Execute(const QString& sql, const QVariantList& valores = {});
    /// Passes through a query once.
    Recorrido Recorrer(const QString& sql, const QVariantList& valores = {});
    Insercion Preparar_Insercion(const QString& tabla, const QStringList& columnas);

    QString Fichero() const;
    /// A number that stays as long as no row of the database was written, by this program or by
    /// another one: what was worked out from rows then still holds.
    quint64 Version() const;
    /// Closes this handle; what is opened on it afterwards raises 3420.
    void Close();
    bool Abierta() const;
    /// Waits until all that was committed is on the disk.
    void Sincronizar();

    /// Transactions of the workspace; nested ones are savepoints.
    void BeginTrans();
    void CommitTrans();
    /// @throws Error_Ejecucion 3034 without a transaction open
    void Rollback();

private:
    explicit Base(std::shared_ptr<Conexion> conexion);
    std::shared_ptr<Conexion> conexion;
};

/// A transaction that is undone unless it is confirmed.
class Transaccion {
public:
    explicit Transaccion(Base& base);
    ~Transaccion();
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;
    void Confirmar();

private:
    Base& base;
    bool abierta = true;
};
