#include "core/jet/Compactacion.h"

#include "core/jet/Conexion.h"
#include "core/plataforma.h"

#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

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
        QFile escrito(destino);
        if (!escrito.open(QIODevice::ReadWrite) || !plataforma::Sincronizar(escrito))
            throw Error_Ejecucion(3043);
    } catch (...) {
        QFile::remove(destino);
        throw;
    }
}

void Compactacion::Sustituir(const QString& compactada)
{
    const std::shared_ptr<Conexion> c = std::exchange(conexion, nullptr);
    const QString fichero = c->Fichero();
#ifdef Q_OS_WIN
    c->Soltar(); // an open file can't be replaced there
#endif
    const bool puesta = plataforma::Reemplazar(compactada, fichero);
    if (puesta) plataforma::Sincronizar_Carpeta(QFileInfo(fichero).absolutePath());
    c->Soltar();
    c->Retomar();
    if (!puesta) throw Error_Ejecucion::Con(75, fichero);
}
