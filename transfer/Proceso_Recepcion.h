#pragma once

#include <QString>
#include <QStringList>
#include <memory>

class Base;

/// What becomes of a finished reception.
struct Resultado_Recepcion {
    bool completa = false;  ///< all that was received is stored: its journal may go
    QStringList sesiones;   ///< numbers of the sessions made, in order
};

/// A reception as it ends: the family and model are those it began with.
struct Datos_Recepcion {
    QString buffer;
    QString nombre;   ///< session name
    int operacion = 0;
    int destino = 0;  ///< of a code library: 0 database, 1 text file
    QString maquina;  ///< family key
    QString maqdes;   ///< model name
    bool rescatada = false;  ///< from a journal: the level's staged rows of its failed storing go
    bool cortada = false;    ///< and the journal breaks off: the level's open job is a session too
};

/// Routes the finished reception to the storing of its family and compacts the database.
Resultado_Recepcion Procesar_Recepcion(const Datos_Recepcion& datos);

/// Where a stream of KRT300 or PX7 records stands between one and the next.
class Almacen_KRT300 {
public:
    /// @param id  session; its rows begin with sequence 1
    Almacen_KRT300(Base& base, qint64 id, const QString& maquina, int operacion);
    ~Almacen_KRT300();
    Almacen_KRT300(const Almacen_KRT300&) = delete;
    Almacen_KRT300& operator=(const Almacen_KRT300&) = delete;

    /// Stores one record: "+" sets the current point, a "G" kind joins the global records in force,
    /// another known kind becomes a row, an unknown kind vanishes.
    /// @throws Error_Ejecucion 3163 when the record is longer than its column
    void Guardar_Registro(const QString& registro);
    /// Commits what has been stored. Without it, also the destructor commits.
    void Confirmar();

private:
    struct Datos;
    std::unique_ptr<Datos> d;
};

/// Cuts a KRT300 or PX7 buffer on "_" and stores its records under session `id`. A failure has no
/// message (it goes to the run log) and leaves what was written. @return true when all is stored
bool Guardar_KRT300(const QString& buffer, qint64 id, const QString& maquina, int operacion);

/// Sets `Npuntos` of a session to the number of its distinct point names; says so when there are none.
void Contar_Puntos(qint64 id);

/// Makes a session of KRT800 text, one row a line ended by CR LF, in one transaction; a failure is
/// reported and rolls everything back. A cancelled one keeps the rows stored so far.
/// @param numero  receives the session's number, empty when none was made
/// @return true when every line is stored
bool Guardar_KRT800(const Datos_Recepcion& datos, QString& numero);

/// The general values in force of a KRT800 session: one item a `Campos` row marked "GE".
class Globales_KRT800 {
public:
    Globales_KRT800(Base& base, const QString& maquina, int operacion);
    ~Globales_KRT800();
    /// Takes over the values that `linea` carries.
    void Campos_Globales(const QString& linea);
    /// Items joined with code 6, their identifier, field and value with code 5.
    const QString& DatosG() const;

private:
    struct Datos;
    std::unique_ptr<Datos> d;
};

/// Rewrites the rows of a session of operation 7 so that those of one profile (same first field)
/// stand together, ordered by their second: each row once, profiles in order of first appearance,
/// sequence numbers untouched. In one transaction that an error undoes.
/// @throws Error_Ejecucion 3075 when a line holds an apostrophe
void Ordenar_Perfiles(Base& base, qint64 id);

/// Makes the sessions of an NV400 transfer: a line that begins with "t" closes a job.
/// @return true when every line is stored
bool Guardar_NV400(const Datos_Recepcion& datos, QStringList& sesiones);
