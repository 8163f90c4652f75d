#include "rawfiles/Fichero_Destino.h"

#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "core/plataforma.h"

#include <algorithm>
#include <QCoreApplication>
#include <QFileInfo>

namespace {

// What the program lives on, below its directory.
constexpr const char* PROPIOS[] = {"MDB/esttotal.bak",  "MDB/esttotal.pak", "DAT/Database.mdb",
                                   "DAT/plantilla.xls", "EstTotal.ini",     "Posicion.ini",
                                   "Puertos.ini",       "DXF.Ini"};

bool Mismo(const QString& a, const QString& b)
{
    const QFileInfo uno(a), otro(b);
    return uno.exists() ? uno.canonicalFilePath() == otro.canonicalFilePath()
                        : uno.absoluteFilePath() == otro.absoluteFilePath();
}

QStringList Ficheros_Propios()
{
    QStringList rutas = {Fichero_MDB, Fichero_MDB + QStringLiteral("-wal"),
                         Fichero_MDB + QStringLiteral("-shm"),
                         QCoreApplication::applicationFilePath()};
    for (const char* const relativa : PROPIOS)
        rutas << En_Instalacion(QString::fromLatin1(relativa));
    return rutas;
}

} // namespace

void Fichero_Destino::Comprobar(const QString& ruta)
{
    const QStringList propios = Ficheros_Propios();
    if (std::ranges::any_of(propios, [&](const QString& p) { return Mismo(ruta, p); }))
        throw Error_Ejecucion(70, QStringLiteral("%1 es un fichero del propio programa").arg(ruta));
}

void Fichero_Destino::Comprobar_Distinto(const QString& origen, const QString& ruta)
{
    if (Mismo(origen, ruta))
        throw Error_Ejecucion(70, QStringLiteral("%1 es el propio origen").arg(ruta));
}

Fichero_Destino::Fichero_Destino(const QString& donde) : ruta(donde)
{
    Comprobar(ruta);
    const QFileInfo viejo(ruta);
    if (!viejo.isFile()) {
        fichero.emplace(ruta);
        return;
    }
    // Put in place by a rename, which would not mind.
    if (!viejo.isWritable()) throw Error_Ejecucion::Con(70, ruta);
    ruta = viejo.canonicalFilePath();
    parcial = ruta + QStringLiteral(".parcial");
    fichero.emplace(parcial);
}

void Fichero_Destino::Terminar()
{
    fichero->Cerrar();
    if (!parcial.isEmpty() && !plataforma::Reemplazar(parcial, ruta))
        throw Error_Ejecucion::Con(70, ruta);
}

void Fichero_Destino::Escribir(const QString& ruta, const QByteArray& bytes)
{
    Comprobar(ruta);
    Ficheros::Escribir(ruta, bytes);
}
