#include "core/Ficheros.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

Error_Ejecucion Ficheros::Error_De(const QFileDevice& fichero)
{
    int numero = 57;
    switch (fichero.error()) {
    case QFileDevice::PermissionsError:
    case QFileDevice::OpenError: // a failed open says no more: folder and name were looked at
                                 // before
    case QFileDevice::RenameError:
        numero = 70;
        break;
    case QFileDevice::WriteError: // how bytes that no longer fit on the disk come back
    case QFileDevice::ResourceError:
        numero = 61;
        break;
    default:
        break;
    }
    return Error_Ejecucion(numero, Descripcion_Error(numero) + QStringLiteral(": ") + ruta);
}

QByteArray Ficheros::Leer(const QString& ruta)
{
    const QFileInfo donde(ruta);
    if (!donde.exists()) throw Error_Con_Nombre(53, ruta);
    if (donde.isDir()) throw Error_Con_Nombre(75, ruta);
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly)) throw Error_De(fichero);
    QByteArray bytes = fichero.readAll();
    if (fichero.error() != QFileDevice::NoError) throw Error_De(fichero);
    return bytes;
}

void Ficheros::Escribir(const QString& ruta, const QByteArray& bytes)
{
    if (ruta.isEmpty()) throw Error_Ejecucion(52);
    const QFileInfo donde(ruta);
    if (donde.isDir()) throw Error_Con_Nombre(75, ruta);
    if (!donde.absoluteDir().exists()) throw Error_Con_Nombre(76, ruta);
    QSaveFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(bytes) != bytes.size() ||
        !fichero.commit())
        throw Error_De(fichero);
}
