#pragma once

#include "tools/revisar_mdb/Filas.h"
#include "tools/revisar_mdb/Revisor.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

/// Ways of reading a written database back, none of them the writer's.
namespace Lectura_Jet {

using Celda = std::optional<QString>;

/// Runs a program of mdbtools. @return its output as text; fails the test when it complains
inline QString Mdbtools(const QString& programa, const QStringList& argumentos)
{
    QProcess proceso;
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert("LC_ALL", "C.UTF-8");
    entorno.remove("LD_PRELOAD");
    proceso.setProcessEnvironment(entorno);
    proceso.start(programa, argumentos);
    if (!proceso.waitForFinished(120000) || proceso.exitCode() != 0)
        QTest::qFail(qPrintable(programa + ": " + proceso.errorString() + " " +
                                QString::fromUtf8(proceso.readAllStandardError())),
                     __FILE__, __LINE__);
    return QString::fromUtf8(proceso.readAllStandardOutput());
}

/// Rows of a table as mdb-export shows them (null and empty are one to it).
inline QList<QStringList> Exportar(const QString& fichero, const QString& tabla)
{
    const QChar entre_celdas(0x1F), entre_filas(0x1E);
    const QString todo =
        Mdbtools("mdb-export", {"-Q", "-H", "-d", entre_celdas, "-R", entre_filas, fichero, tabla});
    QList<QStringList> filas;
    for (const QString& fila : todo.split(entre_filas))
        filas << fila.split(entre_celdas);
    filas.removeLast(); // behind the last mark
    return filas;
}

/// Rows of the table defined on `pagina`, as the examiner cuts them.
inline QList<QList<Celda>> Cortar(const QByteArray& fichero, quint32 pagina = 16)
{
    using namespace Revision_Mdb;
    Revision revision(fichero);
    const Definicion tabla = Leer_Definicion(revision, pagina, "la tabla");
    QList<QList<Celda>> filas;
    Revisar_Filas(revision, tabla, [&](const Registro& registro, quint32, quint32) {
        QList<Celda> fila;
        for (const auto& valor : registro) {
            if (!valor)
                fila << std::nullopt;
            else if (valor->Largo() > 2 && valor->U16(0) == 0xFEFF)
                fila << QString::fromLatin1(valor->Desde(2).Vista());
            else
                fila << valor->Utf16();
        }
        filas << fila;
    });
    return filas;
}

} // namespace Lectura_Jet
