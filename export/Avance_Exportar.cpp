#include "export/Avance_Exportar.h"

#include "core/Interfaz.h"

Avance_Exportar::~Avance_Exportar() = default;

void Marcador::Mostrar()
{
    avance.Valor(hechos);
    Interfaz_Actual().Repintar();
}
