#pragma once

#include "core/Error_Ejecucion.h"
#include "core/jet/Traductor.h"

#include <list>
#include <memory>
#include <QHash>
#include <QString>
#include <QVariant>
#include <unordered_set>

struct sqlite3;
struct sqlite3_stmt;
class Sentencia;

/// The one connection of the process to a database file; handles, recordsets and passes share it.
/// It closes when the last of them goes. Used from one thread.
class Conexion : public std::enable_shared_from_this<Conexion> {
public:
    /// The connection to `fichero`, opened if none is. @throws Error_Ejecucion 3024, 3343, 3051,
    /// 3045
    static std::shared_ptr<Conexion> De(const QString& fichero);
    /// The connection to `fichero` if there is one, as it stands; null otherwise.
    static std::shared_ptr<Conexion> Abierta(const QString& fichero);
    /// Makes the file and its tables. @throws Error_Ejecucion 3204, 3044, 3051, 3026
    static std::shared_ptr<Conexion> Crear(const QString& fichero);
    ~Conexion();
    Conexion(const Conexion&) = delete;
    Conexion& operator=(const Conexion&) = delete;

    const QString& Fichero() const { return fichero; }
    /// Grows whenever a row was written through this connection or any other; never the same for
    /// two connections of the process.
    quint64 Version();
    sqlite3* Manejador() const { return base; }

    /// A prepared statement, from the cache when one of the same text is idle.
    /// @throws Error_Ejecucion 3061 unknown name, 3078 unknown table, 3075 syntax, ...
    Sentencia Preparar(const QByteArray& sql);
    /// Runs a text of the store's own (not the program's SQL).
    void Ejecutar(const char* sql);

    void Comenzar();
    void Confirmar();
    void Deshacer();
    int Nivel() const { return nivel; }

    /// True while a pass stands on a row: the file can't be exchanged then.
    bool Leyendo() const;
    /// Lets go of the file, keeping the borrowed statements' texts; and takes it up again,
    /// preparing them anew.
    void Soltar();
    void Retomar();
    /// Takes the file up for this connection alone, without a log beside it.
    /// @throws Error_Ejecucion 3045 when another program has it open
    void Retomar_Sola();

    /// Waits until what was committed lies on the disk.
    void Sincronizar();
    /// True with a log beside the file; false on a network drive, where a journal goes with each
    /// transaction and every commit waits for the disk.
    bool Con_Diario() const { return con_diario; }
    /// Takes up the file that another program has put in this one's place. Only without a log: with
    /// one an open file can't be exchanged.
    void Poner_Al_Dia();

    /// The failure that SQLite's result `codigo` stands for, with the engine's number.
    Error_Ejecucion Error(int codigo) const;

private:
    friend class Sentencia;
    explicit Conexion(const QString& fichero);
    void Abrir(bool crear);
    bool Movido() const;
    void Abrir_Fichero(bool crear);
    void Abrir_Manejador(int modo);
    void Configurar();
    void Comprobar_Largo();
    void Comprobar();
    int Version_De_Tablas();
    QString Preguntar(const char* sql);
    void Devolver(const QByteArray& sql, sqlite3_stmt* st);
    sqlite3_stmt* Compilar(const QByteArray& sql);

    QString fichero;
    sqlite3* base = nullptr;
    int nivel = 0;
    bool con_diario = true;
    // What `Version` last saw: changes made here, and the file's own count of those made elsewhere.
    quint64 version = 0;
    qint64 propios = -1, ajenos = -1;
    // Idle statements by text, the least lately used first.
    std::list<std::pair<QByteArray, sqlite3_stmt*>> libres;
    QHash<QByteArray, std::list<std::pair<QByteArray, sqlite3_stmt*>>::iterator> por_texto;
    std::unordered_set<Sentencia*> prestadas;
};

/// A prepared statement on loan; it goes back to the connection's cache at its end.
class Sentencia {
public:
    Sentencia() = default;
    Sentencia(std::shared_ptr<Conexion> conexion, QByteArray sql, sqlite3_stmt* st);
    Sentencia(Sentencia&& otra) noexcept;
    Sentencia& operator=(Sentencia&& otra) noexcept;
    ~Sentencia();

    /// Steps once. @return true with a row. @throws Error_Ejecucion
    bool Paso();
    /// Ready to run again; the values bound stay.
    void Reiniciar();
    /// Runs to the end, ready to run again.
    void Ejecutar();
    bool En_Marcha() const;

    /// Binds by place from 1. A boolean is "SI" or "NO", a moment its stored text.
    void Ligar(int lugar, const QVariant& valor);
    void Ligar_Entero(int lugar, qint64 valor);
    void Ligar_Real(int lugar, double valor);
    void Ligar_Nulo(int lugar);
    /// The text is copied.
    void Ligar_Texto(int lugar, QStringView texto);
    void Ligar_Bytes(int lugar, QByteArrayView utf8);
    /// Binds lifted literals, and the caller's values where the text has its own `?`.
    /// @throws Error_Ejecucion 3061 when there are too few values, 3001 when too many
    void Ligar(const std::vector<Valor_Sql>& fijos, const QVariantList& valores);

    int Columnas() const;
    QVariant Valor(int columna) const;
    qint64 Entero(int columna) const;
    double Real(int columna) const;
    /// SQLite's type of the value.
    int Tipo(int columna) const;
    QString Texto(int columna) const;
    QByteArrayView Bytes(int columna) const;
    bool Es_Nulo(int columna) const;
    /// Name of a column of the result; name and table it comes from, empty for an expression.
    QString Nombre(int columna) const;
    QString Nombre_Origen(int columna) const;
    QString Tabla_Origen(int columna) const;

    const QByteArray& Sql() const { return sql; }

private:
    friend class Conexion;
    void Soltar();
    [[noreturn]] void Fallar(int codigo);

    std::shared_ptr<Conexion> conexion;
    QByteArray sql;
    sqlite3_stmt* st = nullptr;
    bool en_marcha = false;
    QByteArray escrito; // scratch for texts on their way
};
