#include "core/jet/Compactacion.h"

#include "core/jet/Conexion.h"
#include "core/plataforma.h"

#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

namespace {

// A file that is born with its log is held by whoever opens it from the first read on. Were the log
// begun by the first who opens, another program could exchange the file between his look and that.
void Empezar_Con_Diario(const QString& fichero)
{
    sqlite3* base = nullptr;
    int r = sqlite3_open_v2(fichero.toUtf8().constData(), &base, SQLITE_OPEN_READWRITE, nullptr);
    if (r == SQLITE_OK)
        r = sqlite3_exec(base, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
    sqlite3_close(base);
    if (r != SQLITE_OK) throw Error_Ejecucion::Con(3043, fichero);
}

void Al_Disco(const QString& fichero)
{
    QFile escrito(fichero);
    if (!escrito.open(QIODevice::ReadWrite) || !plataforma::Sincronizar(escrito))
        throw Error_Ejecucion::Con(3043, fichero);
}

} // namespace

Compactacion::Compactacion(const QString& fichero) : conexion(Conexion::De(fichero))
{
    if (conexion->Nivel() > 0 || conexion->Leyendo()) throw Error_Ejecucion(3045);
    conexion->Soltar();
    try {
        conexion->Retomar_Sola();
    } catch (...) {
        conexion->Retomar();
        throw;
    }
}

Compactacion::~Compactacion()
{
    if (!conexion) return;
    try {
        Liberar();
    } catch (const Error_Ejecucion&) {
        // The next use of the connection reports what is wrong with the file.
    }
}

void Compactacion::Liberar()
{
    // Before it is let go, so that nobody meets the file without its log.
    if (conexion->Con_Diario()) conexion->Ejecutar("PRAGMA journal_mode=WAL");
    conexion->Soltar();
    conexion->Retomar();
}

void Compactacion::Escribir(const QString& destino)
{
    if (QFileInfo::exists(destino)) throw Error_Ejecucion(3204);
    try {
        Sentencia s = conexion->Preparar("VACUUM INTO ?");
        s.Ligar(1, destino);
        s.Ejecutar();
        Al_Disco(destino);
    } catch (...) {
        QFile::remove(destino);
        throw;
    }
}

void Compactacion::Sustituir(const QString& compactada)
{
    const std::shared_ptr<Conexion> c = std::exchange(conexion, nullptr);
    const QString fichero = c->Fichero();
    bool puesta = false;
    try {
        plataforma::Copiar_Permisos(fichero, compactada);
        if (c->Con_Diario()) {
            Empezar_Con_Diario(compactada);
            Al_Disco(compactada);
        }
#ifdef Q_OS_WIN
        c->Soltar(); // an open file can't be replaced there
#endif
        puesta = plataforma::Reemplazar(compactada, fichero);
    } catch (const Error_Ejecucion&) {
        puesta = false;
    }
    if (puesta) plataforma::Sincronizar_Carpeta(QFileInfo(fichero).absolutePath());
    c->Soltar();
    c->Retomar();
    if (!puesta) throw Error_Ejecucion::Con(75, fichero);
}
