#include "core/ModLOG.h"

#include "core/Ansi.h"
#include "core/Basico.h"
#include "core/Ficheros.h"
#include "core/Interfaz.h"
#include "core/ModEstTotal.h"
#include "core/Reloj.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 LARGO_DIARIO = 1024 * 1024;

QString Fichero_En_Log(const QString& nombre)
{
    return En_Instalacion(QStringLiteral("LOG/") + nombre);
}

void Anadir_Linea(const QString& ruta, const QString& texto)
{
    if (QFileInfo(ruta).isDir()) throw Error_Ejecucion(75);
    QFile fichero(ruta);
    const QByteArray linea = Ansi::A_Bytes(texto) + "\r\n";
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered) ||
        fichero.write(linea) != linea.size())
        throw Ficheros::Error_De(fichero);
}

void Informar(const QString& mensaje)
{
    const Error_Ejecucion e = Error_En_Curso();
    Interfaz_Actual().Mensaje(Texto_Informe(mensaje, e, QString()), Icono::Critico);
}

} // namespace

void Iniciar_Log(const QString& nombre)
{
    try {
        if (!QDir().mkpath(En_Instalacion("LOG"))) throw Error_Ejecucion(75);
        const QString ruta = Fichero_En_Log(nombre);
        if (QFileInfo::exists(ruta) && !QFile::remove(ruta)) throw Error_Ejecucion(70);
        Anadir_Linea(ruta, QString());
    } catch (...) {
        Informar(QStringLiteral("Proceso Miraldos ABORTADO - No se puede crear el Fichero LOG - "));
    }
}

void Escribir_Log(const QString& nombre, const QString& texto)
{
    try {
        Anadir_Linea(Fichero_En_Log(nombre), texto);
    } catch (...) {
        Informar(QStringLiteral(
            "Proceso Miraldos ABORTADO - NO SE PUEDE ESCRIBIR EN EL FICHERO LOG - "));
    }
}

QString Nombre_Log(const QString& prefijo, const QDateTime& momento)
{
    return prefijo + u'_' + Basico::Formato_Fecha(momento, QStringLiteral("ddmmyy_hhmm")) +
           QStringLiteral(".LOG");
}

void Anotar(const QString& donde, const QString& texto)
{
    if (Ruta_Aplicacion.isEmpty()) return;
    try {
        QDir().mkpath(En_Instalacion("LOG"));
        const QString ruta = Fichero_En_Log("Miraldos.log");
        if (QFileInfo(ruta).size() > LARGO_DIARIO) {
            QFile::remove(ruta + QStringLiteral(".1"));
            QFile::rename(ruta, ruta + QStringLiteral(".1"));
        }
        const QString momento =
            Basico::Formato_Fecha(Reloj_Actual().Ahora(), QStringLiteral("YYYY-MM-DD HH:MM:SS"));
        Anadir_Linea(ruta, momento + u' ' + donde + QStringLiteral(": ") + texto);
    } catch (const Error_Ejecucion&) {
        // There is nowhere left to tell it.
    }
}

void Anotar_Fallo(const QString& donde)
{
    const Error_Ejecucion e = Error_En_Curso();
    Anotar(donde, QStringLiteral("(%1) %2").arg(e.numero).arg(e.descripcion));
}
