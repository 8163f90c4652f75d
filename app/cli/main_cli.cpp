#include "app/cli/Ordenes.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    QFile salida, errores;
    if (!salida.open(stdout, QIODevice::WriteOnly) || !errores.open(stderr, QIODevice::WriteOnly))
        return RECHAZADO;
    Contexto contexto;
    contexto.dir = QCoreApplication::applicationDirPath();
    contexto.salida = &salida;
    contexto.errores = &errores;
    return Ejecutar_Orden(contexto, QCoreApplication::arguments().mid(1));
}
