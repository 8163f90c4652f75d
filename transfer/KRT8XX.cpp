#include "transfer/KRT8XX.h"

#include "core/Ansi.h"

void Recibir_KRT800(char caracter, const Salida_Recepcion& comm)
{
    if (caracter == Control::EOT) comm.Saltar_a_Sesiones();
    else Recepcion.Buffer += Ansi::Caracter(static_cast<unsigned char>(caracter));
}
