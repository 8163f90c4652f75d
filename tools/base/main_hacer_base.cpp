#include "core/Error_Ejecucion.h"
#include "tools/base/Comprobaciones.h"
#include "tools/base/Escritura.h"

#include <cstdio>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

namespace {

// As new as the newest list; a release gives its own moment (seconds of 1970) to every build of it.
QString Sello_De(const QString& carpeta)
{
    QDateTime momento = QDateTime::fromSecsSinceEpoch(0);
    const auto listas = QDir(carpeta).entryInfoList({QStringLiteral("*.csv")}, QDir::Files);
    for (const QFileInfo& lista : listas)
        momento = qMax(momento, lista.lastModified());
    bool dado = false;
    const qint64 de_fuera = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&dado);
    if (dado) momento = QDateTime::fromSecsSinceEpoch(de_fuera);
    return momento.toUTC().toString(QStringLiteral("yyyyMMddHHmmss"));
}

} // namespace

// hacer_base DATOS FICHERO: makes the delivered database FICHERO from the tables of
// DATOS/DAT/tablas. Status 0 done, 1 faults in the tables (each on a line), 2 wrong usage.
int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList palabras = QCoreApplication::arguments();
    if (palabras.size() != 3) {
        std::fputs("Uso: hacer_base DATOS FICHERO\n", stderr);
        return 2;
    }
    QList<Falta> faltas;
    try {
        const QString tablas = palabras[1] + QStringLiteral("/DAT/tablas");
        const Juego juego = Leer_Tablas(tablas, faltas);
        Comprobar_Todo(juego, palabras[1], faltas);
        if (faltas.isEmpty()) Escribir_Base(juego, palabras[2], faltas, Sello_De(tablas));
    } catch (const Error_Ejecucion& e) {
        faltas << Falta{palabras[2], 0, QStringLiteral("(%1) %2").arg(e.numero).arg(e.descripcion)};
    }
    for (const Falta& f : faltas)
        std::fputs((f.Texto() + u'\n').toUtf8().constData(), stderr);
    return faltas.isEmpty() ? 0 : 1;
}
