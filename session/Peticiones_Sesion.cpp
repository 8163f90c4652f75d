#include "session/Peticiones_Sesion.h"

#include "core/Estado_Global.h"

Peticiones_Sesion& Peticiones_De_Sesion()
{
    return Estado_Global::Unico<Peticiones_Sesion>();
}
