#include "transfer/krt800/Receptor_KRT800.h"

#include "core/Ansi.h"

Respuesta_Recepcion Receptor_KRT800::Recibir(char caracter)
{
    if (caracter == Control::EOT) return {{}, true};
    buffer += Ansi::Caracter(static_cast<unsigned char>(caracter));
    return {};
}
