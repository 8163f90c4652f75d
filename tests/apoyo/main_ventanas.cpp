#include "tests/apoyo/Prueba.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication aplicacion(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return Ejecutar_Pruebas(QCoreApplication::arguments());
}
