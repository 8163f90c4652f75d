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
    p.Mostrar_Existente_NV400 = [](const Sesion_Elegida&, const QString&) { Decir_Que_Falta(); };
    p.Mostrar_Nuevo_NV400 = [](const Sesion_Elegida&) { Decir_Que_Falta(); };
    p.Abrir_Imprimir = [](const Trabajo_Exportar&) { Decir_Que_Falta(); };
    return p;
}

} // namespace

Peticiones_Formatos& Peticiones_De_Formatos()
{
    return Estado_Global::Unico(Iniciales);
}
