#include "core/jet/Conexion.h"

#include "core/jet/Esquema.h"
#include "core/jet/Funciones.h"
#include "core/jet/Migracion.h"
#include "core/plataforma.h"

#include <cerrno>
#include <cstring>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QThread>
#include <sqlite3.h>

namespace {

constexpr std::size_t SENTENCIAS_GUARDADAS = 64;
// Another program may be storing a long session; longer than this it is taken to hold the file.
constexpr int ESPERA_BLOQUEO_MS = 10000;
constexpr int ESPERA_CAMBIO_MS = 300, PAUSA_CAMBIO_MS = 20;
constexpr int NO_ES_BASE = 3343;

QHash<QString, std::weak_ptr<Conexion>>& Abiertas()
{
    // Never destroyed: a run ended from inside a loop closes its database behind the static objects.
    static auto& abiertas = *new QHash<QString, std::weak_ptr<Conexion>>;
    return abiertas;
}

// One name a file, however it was spelt.
QString Nombre_Unico(const QString& fichero)
{
    const QFileInfo info(fichero);
    const QString real = info.canonicalFilePath();
    return real.isEmpty() ? info.absoluteFilePath() : real;
}

Error_Ejecucion Con_Detalle(int numero, const QString& detalle)
{
    return Error_Ejecucion::Con(numero, detalle);
}

int Numero_Restriccion(const char* mensaje, int extendido)
{
    switch (extendido) {
    case SQLITE_CONSTRAINT_CHECK:
        if (std::strstr(mensaje, Esquema::PREFIJO_FECHA)) return 3421;
        return std::strstr(mensaje, Esquema::PREFIJO_RANGO) ? 6 : 3163;
    case SQLITE_CONSTRAINT_NOTNULL:
        return 3058;
    case SQLITE_CONSTRAINT_DATATYPE:
        return 3421;
    default:
        return 3022;
    }
}

// SQLite tells faults of a statement's text apart by words only.
Error_Ejecucion Error_De_Texto(const QString& mensaje)
{
    struct Regla {
        const char* palabras;
        int numero;
    };
    static constexpr Regla reglas[] = {
        {"no such column", 3061},   {"no such table", 3078},       {"ambiguous column", 3079},
        {"no such function", 3085}, {"has no column named", 3061},
    };
    const QString marca = QLatin1String(MARCA_FUNCION);
    if (mensaje.startsWith(marca)) return Error_Ejecucion(mensaje.mid(marca.size()).toInt());
    for (const Regla& r : reglas)
        if (const auto p = mensaje.indexOf(QLatin1String(r.palabras)); p >= 0)
            return Con_Detalle(
                r.numero, mensaje.mid(p + qsizetype(qstrlen(r.palabras))).remove(u':').trimmed());
    return Con_Detalle(3075, mensaje);
}

} // namespace

Conexion::Conexion(const QString& f) : fichero(f) {}

std::shared_ptr<Conexion> Conexion::De(const QString& fichero)
{
    const QFileInfo info(fichero);
    if (!info.exists() || info.isDir()) throw Con_Detalle(3024, fichero);
    const QString nombre = Nombre_Unico(fichero);
    if (auto abierta = Abiertas().value(nombre).lock()) {
        if (!abierta->base) abierta->Retomar();
        return abierta;
    }
    std::shared_ptr<Conexion> nueva(new Conexion(nombre));
    nueva->Abrir(false);
    Abiertas()[nombre] = nueva;
    return nueva;
}

std::shared_ptr<Conexion> Conexion::Abierta(const QString& fichero)
{
    return Abiertas().value(Nombre_Unico(fichero)).lock();
}

std::shared_ptr<Conexion> Conexion::Crear(const QString& fichero)
{
    const QFileInfo info(fichero);
    if (info.exists()) throw Con_Detalle(3204, fichero);
    if (!info.absoluteDir().exists()) throw Con_Detalle(3044, fichero);
    std::shared_ptr<Conexion> nueva(new Conexion(info.absoluteFilePath()));
    try {
        nueva->Abrir(true);
    } catch (...) {
        nueva->Soltar();
        QFile::remove(fichero);
        throw;
    }
    nueva->fichero = Nombre_Unico(fichero);
    Abiertas()[nueva->fichero] = nueva;
    return nueva;
}

Conexion::~Conexion()
{
    Soltar();
    if (const auto it = Abiertas().find(fichero); it != Abiertas().end() && it->expired())
        Abiertas().erase(it);
}

bool Conexion::Movido() const
{
    int movido = 0;
    if (base) sqlite3_file_control(base, "main", SQLITE_FCNTL_HAS_MOVED, &movido);
    return movido != 0;
}

void Conexion::Abrir(bool crear)
{
    // A program that compacts may put another file in this one's place while it is being opened:
    // what is read then belongs to two files and looks damaged. What still does a moment later is.
    const QDeadlineTimer plazo(ESPERA_BLOQUEO_MS), cambio(ESPERA_CAMBIO_MS);
    while (true) {
        try {
            Abrir_Fichero(crear);
        } catch (const Error_Ejecucion& e) {
            const bool otra_vez =
                !crear && e.numero == NO_ES_BASE && !(Movido() ? plazo : cambio).hasExpired();
            if (!otra_vez) throw;
            Soltar();
            QThread::msleep(PAUSA_CAMBIO_MS);
            continue;
        }
        if (!Movido()) return Configurar();
        Soltar();
        if (plazo.hasExpired()) throw Con_Detalle(3045, fichero);
    }
}

void Conexion::Abrir_Manejador(int modo)
{
    const int r = sqlite3_open_v2(fichero.toUtf8().constData(), &base,
                                  SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | modo, nullptr);
    if (r != SQLITE_OK) throw Error(r);
    sqlite3_extended_result_codes(base, 1);
    Registrar_Funciones(base);
    con_diario = !plataforma::Es_De_Red(plataforma::Sistema_De_Ficheros(fichero));
    // A log that a local program left is read and put away without the shared memory that isn't to
    // be had here.
    if (!con_diario) Ejecutar("PRAGMA locking_mode=EXCLUSIVE");
}

void Conexion::Abrir_Fichero(bool crear)
{
    Abrir_Manejador(crear ? SQLITE_OPEN_CREATE : 0);
    sqlite3_busy_timeout(base, ESPERA_BLOQUEO_MS);
    if (!crear) {
        Comprobar_Largo();
        return Comprobar();
    }
    Ejecutar("BEGIN EXCLUSIVE");
    for (const QString& sql : Esquema::Sentencias())
        Ejecutar(sql.toUtf8().constData());
    Ejecutar(("PRAGMA application_id=" + QByteArray::number(Esquema::MARCA_FICHERO)).constData());
    Ejecutar(("PRAGMA user_version=" + QByteArray::number(Esquema::VERSION)).constData());
    Ejecutar("COMMIT");
}

void Conexion::Configurar()
{
    version = 0;
    if (sqlite3_db_readonly(base, "main") == 1) throw Con_Detalle(3051, fichero);
    if (Version_De_Tablas() < Esquema::VERSION) Migrar(*this);
    if (con_diario) {
        Ejecutar("PRAGMA journal_mode=WAL");
        Ejecutar("PRAGMA synchronous=NORMAL");
    } else {
        Ejecutar("PRAGMA journal_mode=DELETE");
        Ejecutar("PRAGMA synchronous=FULL");
        // Free again with the next read.
        Ejecutar("PRAGMA locking_mode=NORMAL");
        Ejecutar("SELECT count(*) FROM sqlite_schema");
    }
    // Deleted sessions hold nothing worth wiping byte by byte.
    Ejecutar("PRAGMA secure_delete=OFF");
    // A damaged page is reported, not followed.
    Ejecutar("PRAGMA cell_size_check=ON");
    Ejecutar("PRAGMA cache_size=-16000");
}

// SQLite fills up a last page that is cut short; the file has lost its end all the same. With a log
// beside it the page may be on its way.
void Conexion::Comprobar_Largo()
{
    if (QFileInfo(fichero + QStringLiteral("-wal")).size() > 0) return;
    const qint64 pagina = Preguntar("PRAGMA page_size").toLongLong();
    if (pagina <= 0 || QFileInfo(fichero).size() % pagina != 0) throw Con_Detalle(3343, fichero);
}

int Conexion::Version_De_Tablas()
{
    return Preguntar("PRAGMA user_version").toInt();
}

// A database of this program holds every table with every column that its version has; anything
// else is a foreign file.
void Conexion::Comprobar()
{
    const int de_tablas = Version_De_Tablas();
    sqlite3_stmt* st = nullptr;
    const int r = sqlite3_prepare_v2(base,
                                     "SELECT lower(m.name||'.'||c.name) FROM sqlite_schema m, "
                                     "pragma_table_info(m.name) c WHERE m.type='table'",
                                     -1, &st, nullptr);
    if (r != SQLITE_OK) throw Error(r);
    QSet<QString> hay;
    int paso = SQLITE_ROW;
    while ((paso = sqlite3_step(st)) == SQLITE_ROW)
        hay << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
    const Error_Ejecucion fallo = Error(paso);
    sqlite3_finalize(st);
    if (paso != SQLITE_DONE) throw fallo;
    if (de_tablas > Esquema::VERSION)
        throw Error_Ejecucion(3041, QStringLiteral("La base de datos es de una versión más nueva "
                                                   "de Miraldos (%1, y ésta llega a la %2). "
                                                   "Instale la versión nueva para abrirla: %3")
                                        .arg(de_tablas)
                                        .arg(Esquema::VERSION)
                                        .arg(fichero));
    for (const Esquema::Tabla& t : Esquema::Tablas())
        for (const Esquema::Columna& c : t.columnas) {
            if (t.desde > de_tablas) break;
            const QString nombre = t.nombre + u'.' + c.nombre;
            if (!hay.contains(nombre.toLower()))
                throw Con_Detalle(3343, QStringLiteral("falta %1").arg(nombre));
        }
}

Error_Ejecucion Conexion::Error(int codigo) const
{
    const char* texto = base ? sqlite3_errmsg(base) : "";
    const QString mensaje = QString::fromUtf8(texto);
    switch (codigo & 0xFF) {
    case SQLITE_NOMEM:
        return Error_Ejecucion(7);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Con_Detalle(3045, fichero);
    case SQLITE_FULL:
        return Error_Ejecucion(3026);
    case SQLITE_IOERR:
        return base && sqlite3_system_errno(base) == ENOSPC ? Error_Ejecucion(3026)
                                                            : Con_Detalle(3043, mensaje);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return Con_Detalle(3343, fichero);
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return Con_Detalle(3051, fichero);
    case SQLITE_CONSTRAINT:
        return Error_Ejecucion(Numero_Restriccion(texto, codigo));
    case SQLITE_MISMATCH:
        return Error_Ejecucion(3421);
    case SQLITE_TOOBIG:
        return Error_Ejecucion(3163);
    case SQLITE_ERROR:
        return Error_De_Texto(mensaje);
    default:
        return Error_Ejecucion::Con(51, mensaje);
    }
}

void Conexion::Ejecutar(const char* sql)
{
    if (!base) throw Error_Ejecucion(3420);
    const int r = sqlite3_exec(base, sql, nullptr, nullptr, nullptr);
    if (r != SQLITE_OK) throw Error(r);
}

QString Conexion::Preguntar(const char* sql)
{
    Sentencia s(shared_from_this(), sql, Compilar(sql));
    return s.Paso() ? s.Texto(0) : QString();
}

sqlite3_stmt* Conexion::Compilar(const QByteArray& sql)
{
    sqlite3_stmt* st = nullptr;
    const char* resto = nullptr;
    const int r = sqlite3_prepare_v3(base, sql.constData(), int(sql.size()) + 1,
                                     SQLITE_PREPARE_PERSISTENT, &st, &resto);
    if (r != SQLITE_OK) throw Error(r);
    if (!st) throw Con_Detalle(3075, QString::fromUtf8(sql));
    for (; resto && *resto; ++resto)
        if (!std::strchr(" \t\r\n;", *resto)) {
            sqlite3_finalize(st);
            throw Con_Detalle(3142, QString::fromUtf8(resto));
        }
    return st;
}

quint64 Conexion::Version()
{
    static quint64 ultima = 0;
    Sentencia s = Preparar("PRAGMA data_version");
    s.Paso();
    const qint64 de_otros = s.Entero(0), de_aqui = sqlite3_total_changes64(base);
    if (version == 0 || de_otros != ajenos || de_aqui != propios) version = ++ultima;
    ajenos = de_otros;
    propios = de_aqui;
    return version;
}

Sentencia Conexion::Preparar(const QByteArray& sql)
{
    if (!base) throw Error_Ejecucion(3420);
    if (const auto it = por_texto.find(sql); it != por_texto.end()) {
        sqlite3_stmt* const st = it.value()->second;
        libres.erase(it.value());
        por_texto.erase(it);
        return Sentencia(shared_from_this(), sql, st);
    }
    return Sentencia(shared_from_this(), sql, Compilar(sql));
}

void Conexion::Devolver(const QByteArray& sql, sqlite3_stmt* st)
{
    if (por_texto.contains(sql)) {
        sqlite3_finalize(st);
        return;
    }
    libres.emplace_back(sql, st);
    por_texto.insert(sql, std::prev(libres.end()));
    if (libres.size() > SENTENCIAS_GUARDADAS) {
        por_texto.remove(libres.front().first);
        sqlite3_finalize(libres.front().second);
        libres.pop_front();
    }
}

// Transactions nest as savepoints; the outermost takes the writing at once, so that it fails at its
// beginning and not half-way when another program is writing.
void Conexion::Comenzar()
{
    if (nivel == 0)
        Ejecutar("BEGIN IMMEDIATE");
    else
        Ejecutar(("SAVEPOINT t" + QByteArray::number(nivel)).constData());
    ++nivel;
}

void Conexion::Confirmar()
{
    if (nivel == 0) throw Error_Ejecucion(3034);
    if (sqlite3_get_autocommit(base)) {
        // A full disk has undone it behind our back.
        nivel = 0;
        throw Error_Ejecucion(3034);
    }
    if (nivel == 1)
        Ejecutar("COMMIT");
    else
        Ejecutar(("RELEASE t" + QByteArray::number(nivel - 1)).constData());
    --nivel;
}

void Conexion::Deshacer()
{
    if (nivel == 0) throw Error_Ejecucion(3034);
    --nivel;
    version = 0; // the rows are those of before
    if (sqlite3_get_autocommit(base)) {
        nivel = 0;
        return;
    }
    if (nivel == 0) {
        Ejecutar("ROLLBACK");
    } else {
        const QByteArray punto = "t" + QByteArray::number(nivel);
        Ejecutar(("ROLLBACK TO " + punto).constData());
        Ejecutar(("RELEASE " + punto).constData());
    }
}

void Conexion::Poner_Al_Dia()
{
    if (!base || con_diario || nivel > 0 || Leyendo()) return;
    int movido = 0;
    sqlite3_file_control(base, "main", SQLITE_FCNTL_HAS_MOVED, &movido);
    if (!movido) return;
    Soltar();
    Retomar();
}

bool Conexion::Leyendo() const
{
    if (!base) return false;
    for (sqlite3_stmt* st = sqlite3_next_stmt(base, nullptr); st; st = sqlite3_next_stmt(base, st))
        if (sqlite3_stmt_busy(st)) return true;
    return false;
}

void Conexion::Soltar()
{
    for (const auto& [sql, st] : libres)
        sqlite3_finalize(st);
    libres.clear();
    por_texto.clear();
    for (Sentencia* s : prestadas) {
        sqlite3_finalize(s->st);
        s->st = nullptr;
        s->en_marcha = false;
    }
    sqlite3_close(base);
    base = nullptr;
    nivel = 0;
}

void Conexion::Retomar()
{
    Abrir(false);
    for (Sentencia* s : prestadas)
        s->st = Compilar(s->sql);
}

void Conexion::Retomar_Sola()
{
    try {
        Abrir_Manejador(0);
        // Exclusive from the first page read: a page that another program has changed can't be
        // taken for the file's. Nobody is waited for.
        Ejecutar("PRAGMA locking_mode=EXCLUSIVE");
        Ejecutar("BEGIN EXCLUSIVE");
        Ejecutar("COMMIT");
        if (Preguntar("PRAGMA journal_mode=DELETE") != u"delete") throw Error(SQLITE_BUSY);
    } catch (...) {
        Soltar();
        throw;
    }
}

void Conexion::Sincronizar()
{
    if (!base) throw Error_Ejecucion(3420);
    sqlite3_file* diario = nullptr;
    if (sqlite3_file_control(base, "main", SQLITE_FCNTL_JOURNAL_POINTER, &diario) != SQLITE_OK ||
        !diario || !diario->pMethods)
        return;
    const int r = diario->pMethods->xSync(diario, SQLITE_SYNC_FULL);
    if (r != SQLITE_OK) throw Error(r);
}
