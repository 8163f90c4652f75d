#include "app/ventanas/Aplicacion.h"
#include "tests/apoyo/Prueba.h"

// The tests of the desktop program run under its own application, whose last trap they try.
int main(int argc, char** argv)
{
    Aplicacion aplicacion(argc, argv);
    return Ejecutar_Pruebas(QCoreApplication::arguments());
}
