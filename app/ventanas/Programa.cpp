#include "app/ventanas/Programa.h"

#include "app/ventanas/Aplicacion.h"
#include "app/ventanas/Ventanas.h"
#include "core/ModEstTotal.h"

namespace {

int Arrancar_Y_Esperar(const QString& ruta, const Interfaz_Qt& interfaz)
{
    Arranque_Qt ventanas;
    try {
        if (!Main(ruta, ventanas)) return ESTADO_FALLO;
    } catch (...) {
        Fallo_Sin_Atrapar(Error_En_Curso());
    }
    // The model's dialog has a loop of its own, in which the run may have been ended already.
    if (!interfaz.Terminada()) QCoreApplication::exec();
    return interfaz.Estado();
}

} // namespace

int Ejecutar_Programa(const QString& ruta)
{
    Interfaz_Qt interfaz;
    Interfaz* const anterior = Poner_Interfaz(&interfaz);
    Conectar_Dialogos(interfaz);
    const int estado = Arrancar_Y_Esperar(ruta, interfaz);
    Base_Datos.reset();
    Poner_Interfaz(anterior);
    return estado;
}
