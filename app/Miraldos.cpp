#include "app/ventanas/Aplicacion.h"
#include "app/ventanas/Programa.h"
#include "core/ui/Estilo.h"

int main(int argc, char** argv)
{
    Aplicacion aplicacion(argc, argv);
    Aplicar_Estilo(aplicacion);
    return Ejecutar_Programa(QCoreApplication::applicationDirPath());
}
