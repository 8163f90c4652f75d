#include "core/Ficheros.h"

#include "core/Ansi.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

// A failed open says no more than that it failed: by then the folder and the name are known to be
// good, so it is the permission. Bytes that no longer fit on the disk come back as a failed write.
static int Numero_De(QFileDevice::FileError error)
{
    switch (error) {
    case QFileDevice::PermissionsError:
    case QFileDevice::OpenError:
    case QFileDevice::RenameError:
        return 70;
    case QFileDevice::WriteError:
    case QFileDevice::ResourceError:
        return 61;
    default:
        return 57;
    }
}

Error_Ejecucion Ficheros::Error_De(const QFileDevice& fichero)
{
    return Error_Ejecucion::Con(
        Numero_De(fichero.error()),
        QStringLiteral("%1 (%2)").arg(fichero.fileName(), fichero.errorString()));
}

QByteArray Ficheros::Leer(const QString& ruta)
{
    const QFileInfo donde(ruta);
    if (!donde.exists()) throw Error_Ejecucion::Con(53, ruta);
    if (donde.isDir()) throw Error_Ejecucion::Con(75, ruta);
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly)) throw Error_De(fichero);
    QByteArray bytes = fichero.readAll();
    if (fichero.error() != QFileDevice::NoError) throw Error_De(fichero);
    return bytes;
}

void Ficheros::Comprobar_Destino(const QString& ruta)
{
    const QFileInfo donde(ruta);
    if (donde.exists() && !donde.isFile()) throw Error_Ejecucion::Con(75, ruta);
}

// Opens the file that takes the place of `ruta` when it is committed.
static void Abrir_Escritura(QSaveFile& fichero, const QString& ruta)
{
    if (ruta.isEmpty()) throw Error_Ejecucion(52);
    Ficheros::Comprobar_Destino(ruta);
    if (!QFileInfo(ruta).absoluteDir().exists()) throw Error_Ejecucion::Con(76, ruta);
    fichero.setFileName(ruta);
    // A file marked read-only is told as a failed write: nothing has been written yet.
    // Without a buffer: its flush takes a half-written block for written, and a full disk would
    // leave a file without its end.
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw Error_Ejecucion::Con(70, ruta);
}

static void Anadir(QSaveFile& fichero, const QByteArray& bytes)
{
    if (fichero.write(bytes) == bytes.size()) return;
    if (fichero.error() == QFileDevice::NoError) throw Error_Ejecucion::Con(61, fichero.fileName());
    throw Ficheros::Error_De(fichero);
}

QStringList Ficheros::Leer_Lineas(const QString& ruta)
{
    QStringList lineas = Ansi::A_Texto(Leer(ruta)).split(u'\n');
    if (lineas.last().isEmpty()) lineas.removeLast();
    for (QString& linea : lineas)
        if (linea.endsWith(u'\r')) linea.chop(1);
    return lineas;
}

void Ficheros::Escribir(const QString& ruta, const QByteArray& bytes)
{
    QSaveFile fichero;
    Abrir_Escritura(fichero, ruta);
    Anadir(fichero, bytes);
    if (!fichero.commit()) throw Error_De(fichero);
}

void Ficheros::Copiar(const QString& origen, const QString& destino)
{
    constexpr qint64 TRAMO = 1024 * 1024;
    const QFileInfo donde(origen);
    if (!donde.exists()) throw Error_Ejecucion::Con(53, origen);
    if (donde.isDir()) throw Error_Ejecucion::Con(75, origen);
    QFile de(origen);
    if (!de.open(QIODevice::ReadOnly)) throw Error_De(de);
    QSaveFile a;
    Abrir_Escritura(a, destino);
    while (!de.atEnd()) {
        const QByteArray tramo = de.read(TRAMO);
        if (tramo.isEmpty()) throw Error_De(de);
        Anadir(a, tramo);
    }
    if (!a.commit()) throw Error_De(a);
}
