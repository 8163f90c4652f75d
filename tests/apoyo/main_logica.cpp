#include "tests/apoyo/Prueba.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    return Ejecutar_Pruebas(QCoreApplication::arguments());
}
