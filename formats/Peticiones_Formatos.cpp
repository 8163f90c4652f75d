#include "formats/Peticiones_Formatos.h"

#include "core/Estado_Global.h"
#include "core/Interfaz.h"

namespace {

// For what this version doesn't offer yet: it says so, and nothing happens.
void Decir_Que_Falta()
{
    Interfaz_Actual().Mensaje("Esta operación todavía no está disponible", Icono::Informacion);
}

Peticiones_Formatos Iniciales()
{
    Peticiones_Formatos p;
    p.Abrir_Imprimir = [](const Trabajo_Exportar&) { Decir_Que_Falta(); };
    return p;
}

} // namespace

Peticiones_Formatos& Peticiones_De_Formatos()
{
    return Estado_Global::Unico(Iniciales);
}
