#include "simulator/Marcha.h"

#include <QCoreApplication>

#include <atomic>
#include <csignal>
#include <cstdio>

namespace {
std::atomic<bool> parar = false;
void Parar(int)
{
    parar = true;
}

/// Writes UTF-8, whatever the locale.
void Decir(std::FILE* salida, const QString& texto)
{
    std::fputs(texto.toUtf8().constData(), salida);
}
} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    simulador::Opciones opciones;
    const QString mal = Leer_Opciones(QCoreApplication::arguments().mid(1), opciones);
    if (!mal.isEmpty()) {
        Decir(stderr, mal + QStringLiteral("\nVea miraldos-sim --ayuda\n"));
        return 2;
    }
    if (opciones.ayuda) {
        Decir(stdout, simulador::Texto_Ayuda());
        return 0;
    }
    simulador::Marcha marcha(opciones);
    if (const QString motivo = marcha.Preparar(); !motivo.isEmpty()) {
        Decir(stderr, motivo + u'\n');
        return 1;
    }
    Decir(stdout, QStringLiteral("%1 listo en %2 (%3)\n")
                      .arg(opciones.aparato, opciones.enlace, marcha.Ruta()));
    std::fflush(stdout);
    // The link is taken away on the way out: nobody is left with a port that leads nowhere.
    std::signal(SIGINT, Parar);
    std::signal(SIGTERM, Parar);
    while (!parar && marcha.Turno()) {
    }
    return parar ? 0 : marcha.Estado();
}
