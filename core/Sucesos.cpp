#include "core/Sucesos.h"

Sucesos& Sucesos::Unico()
{
    static Sucesos unico;
    return unico;
}
