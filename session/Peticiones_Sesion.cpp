#include "session/Peticiones_Sesion.h"

Peticiones_Sesion& Peticiones_De_Sesion()
{
    static Peticiones_Sesion peticiones;
    return peticiones;
}
