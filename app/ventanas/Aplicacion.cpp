#include "app/ventanas/Aplicacion.h"

#include "core/Ansi.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Reloj.h"

#include <QDir>
#include <QFile>
#include <QScopedValueRollback>

namespace {

// The log is for who looks for the cause: a failure to write it is no second failure.
void Escribir_Fallo(const Error_Ejecucion& error)
{
    const QDateTime ahora = Reloj_Actual().Ahora();
    QDir().mkpath(En_Instalacion("LOG"));
    QFile fichero(En_Instalacion("LOG/FALLO_") +
                  Basico::Formato_Fecha(ahora, QStringLiteral("ddmmyy_hhmm")) +
                  QStringLiteral(".LOG"));
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Append)) return;
    const QString linea = Basico::Formato_Fecha(ahora, QStringLiteral("DD/MM/YYYY HH:MM:SS")) +
                          QStringLiteral(" Miraldos ") + QCoreApplication::applicationVersion() +
                          QStringLiteral(" (") + QString::number(error.numero) +
                          QStringLiteral(") ") + error.descripcion + QStringLiteral("\r\n");
    fichero.write(Ansi::A_Bytes(linea));
}

} // namespace

Aplicacion::Aplicacion(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Miraldos"));
    setApplicationVersion(QStringLiteral(MIRALDOS_VERSION));
    // The main window ends the run, not the last box that closes.
    setQuitOnLastWindowClosed(false);
}

bool Aplicacion::notify(QObject* receptor, QEvent* evento)
{
    try {
        return QApplication::notify(receptor, evento);
    } catch (...) {
        Fallo_Sin_Atrapar(Error_En_Curso());
        return true;
    }
}

void Fallo_Sin_Atrapar(const Error_Ejecucion& error)
{
    static bool en_caja = false;
    Escribir_Fallo(error);
    if (en_caja) return;
    const QScopedValueRollback<bool> marca(en_caja, true);
    Interfaz_Actual().Mensaje(QStringLiteral("Se produjo el error '") +
                                  QString::number(error.numero) +
                                  QStringLiteral("' en tiempo de ejecución:\r") + error.descripcion,
                              Icono::Critico);
    Interfaz_Actual().Terminar(ESTADO_FALLO);
}
