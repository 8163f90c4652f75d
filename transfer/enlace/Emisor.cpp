#include "transfer/enlace/Emisor.h"

Emisor::~Emisor() = default;

Paso_Envio Emisor::Siguiente_Envio(char)
{
    return {};
}

Paso_Envio Emisor::Seguir()
{
    return {};
}

Paso_Envio Emisor::Vencer()
{
    return {};
}
