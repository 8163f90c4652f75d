#include "rawfiles/Peticiones_Rawfiles.h"

#include "core/Estado_Global.h"

Peticiones_Rawfiles& Peticiones_De_Rawfiles()
{
    return Estado_Global::Unico<Peticiones_Rawfiles>();
}
