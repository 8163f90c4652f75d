#include "transfer/Recepcion.h"

#include "transfer/KRT3XX.h"
#include "transfer/KRT8XX.h"
#include "transfer/NV400.h"

Estado_Recepcion Recepcion;

void Recibir_Caracter(char caracter, const QString& maquina, const Salida_Recepcion& comm)
{
    if (maquina == u"KRT300" || maquina == u"PX7") Recibir_KRT300(caracter, comm);
    else if (maquina == u"NV400") Recibir_NV400(caracter, comm);
    else if (maquina == u"KRT800") Recibir_KRT800(caracter, comm);
}

void Preparar_Recepcion()
{
    Recepcion.EnTrama = false;
    Recepcion.EnLinea = false;
}
