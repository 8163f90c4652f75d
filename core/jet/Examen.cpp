#include "core/jet/Examen.h"

#include "core/Ficheros.h"
#include "core/jet/Conexion.h"
#include "core/jet/Esquema.h"
#include "core/jet/Fichero_Quieto.h"
#include "core/plataforma.h"

#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

namespace {

constexpr const char* RESTOS[] = {"-wal", "-journal", "-shm"};

// The lock stands at a fixed place of the file, so that it can be asked for whatever the rest says.
void Comprobar_Libre(const QString& fichero)
{
    sqlite3* base = nullptr;
    int r = sqlite3_open_v2(fichero.toUtf8().constData(), &base, SQLITE_OPEN_READWRITE, nullptr);
    if (r == SQLITE_OK)
        r = sqlite3_exec(base, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE", nullptr, nullptr,
                         nullptr);
    sqlite3_close(base);
    if ((r & 0xFF) == SQLITE_BUSY || (r & 0xFF) == SQLITE_LOCKED)
        throw Error_Ejecucion::Con(3045, fichero);
}

void Apartar(const QString& fichero, const QString& aparte)
{
    if (!QFileInfo::exists(fichero)) return;
    Ficheros::Copiar(fichero, aparte);
    for (const char* resto : RESTOS)
        if (const QString r = QLatin1String(resto); QFileInfo::exists(fichero + r))
            Ficheros::Copiar(fichero + r, aparte + r);
}

void Devolver_Restos(const QString& fichero, const QString& aparte)
{
    for (const char* resto : RESTOS)
        if (const QString r = QLatin1String(resto);
            QFileInfo::exists(aparte + r) && !QFileInfo::exists(fichero + r))
            QFile::copy(aparte + r, fichero + r);
}

void Poner_En_Su_Lugar(const QString& fichero, const QString& nueva, const QString& aparte)
{
    Apartar(fichero, aparte);
    if (QFileInfo::exists(fichero)) {
        Comprobar_Libre(fichero);
        plataforma::Copiar_Permisos(fichero, nueva);
    }
    // What is left beside the old one would be taken for the new one's own unfinished writing.
    for (const char* resto : RESTOS)
        QFile::remove(fichero + QLatin1String(resto));
    if (!plataforma::Reemplazar(nueva, fichero)) {
        Devolver_Restos(fichero, aparte);
        throw Error_Ejecucion::Con(75, fichero);
    }
    plataforma::Sincronizar_Carpeta(QFileInfo(fichero).absolutePath());
}

void Quitar_Aparte(const QString& aparte)
{
    QFile::remove(aparte);
    for (const char* resto : RESTOS)
        QFile::remove(aparte + QLatin1String(resto));
}

} // namespace

Examen Examinar_Base(const QString& fichero, bool a_fondo)
{
    Examen e;
    Fichero_Quieto base(fichero);
    QString texto;
    e.es_base = base.Preguntar("PRAGMA application_id", texto) &&
                texto.toInt() == Esquema::MARCA_FICHERO &&
                base.Preguntar("PRAGMA user_version", texto);
    if (!e.es_base) {
        e.defecto = base.Fallo();
        return e;
    }
    e.version = texto.toInt();
    if (!base.Preguntar("SELECT count(*) FROM Sesiones", texto)) {
        e.defecto = base.Fallo();
        return e;
    }
    e.sesiones = texto.toLongLong();
    if (!a_fondo) return e;
    if (!base.Preguntar("PRAGMA quick_check(1)", texto))
        e.defecto = base.Fallo();
    else if (texto != u"ok")
        e.defecto = texto;
    return e;
}

void Cambiar_Base(const QString& fichero, const QString& nueva, const QString& aparte)
{
    const std::shared_ptr<Conexion> abierta = Conexion::Abierta(fichero);
    if (abierta && (abierta->Nivel() > 0 || abierta->Leyendo()))
        throw Error_Ejecucion::Con(3045, fichero);
    if (abierta) abierta->Soltar();
    try {
        Poner_En_Su_Lugar(fichero, nueva, aparte);
    } catch (...) {
        Quitar_Aparte(aparte);
        try {
            if (abierta) abierta->Retomar();
        } catch (const Error_Ejecucion&) {
            // As damaged as before: its next use says so.
        }
        throw;
    }
    if (abierta) abierta->Retomar();
}
