#include "codes/Peticiones_Codigos.h"

#include "core/Estado_Global.h"
#include "core/Interfaz.h"

namespace {

// For what this version doesn't offer yet: it says so, and nothing happens.
void No_Disponible(const QString& que)
{
    Interfaz_Actual().Mensaje(que + " todavía no está disponible en esta versión",
                              Icono::Informacion);
}

Peticiones_Codigos Iniciales()
{
    Peticiones_Codigos p;
    p.Enviar = [](const QString&) { No_Disponible("La carga de librerías de códigos"); };
    p.Recibir_En_FrmSplash = p.Recibir_En_FrmSplash2 = [](const Destino_Libreria&) {
        No_Disponible("La descarga de librerías de códigos");
    };
    return p;
}

} // namespace

Peticiones_Codigos& Peticiones_De_Codigos()
{
    return Estado_Global::Unico(Iniciales);
}
