#include "app/cli/Ordenes.h"

#include <QFile>
#include <QGuiApplication>

#include <cstdio>
#include <memory>

namespace {

// The graphics part costs start-up time, so that only what draws pays for it; it needs no screen.
std::unique_ptr<QCoreApplication> Hacer_Aplicacion(int& argc, char** argv)
{
    QStringList palabras;
    for (int i = 1; i < argc; ++i)
        palabras << QString::fromLocal8Bit(argv[i]);
    if (!Hay_Que_Dibujar(palabras)) return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv)
{
    const auto aplicacion = Hacer_Aplicacion(argc, argv);
    QFile salida, errores;
    if (!salida.open(stdout, QIODevice::WriteOnly) || !errores.open(stderr, QIODevice::WriteOnly))
        return RECHAZADO;
    Contexto contexto;
    contexto.dir = QCoreApplication::applicationDirPath();
    contexto.salida = &salida;
    contexto.errores = &errores;
    return Ejecutar_Orden(contexto, QCoreApplication::arguments().mid(1));
}
