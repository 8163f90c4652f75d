#include "app/ventanas/Programa.h"

#include "app/ventanas/Aplicacion.h"
#include "app/ventanas/Ventanas.h"
#include "core/ModEstTotal.h"
#include "core/plataforma.h"
#include "transfer/enlace/Descarga.h"

#include <QSessionManager>

namespace {

int Arrancar_Y_Esperar(const QString& ruta, const Interfaz_Qt& interfaz)
{
    Arranque_Qt ventanas;
    try {
        if (!Main(ruta, ventanas)) return ESTADO_FALLO;
    } catch (...) {
        Fallo_Sin_Atrapar(Error_En_Curso());
    }
    const plataforma::Peticion_De_Fin fin;
    QObject::connect(&fin, &plataforma::Peticion_De_Fin::pedido, qApp, [] {
        if (Conversacion* const transferencia = Transferencia_En_Curso())
            transferencia->Abandonar();
        Interfaz_Actual().Terminar(ESTADO_FALLO);
    });
    // The end of the user's session may be called off by another program: the transfer goes on, and
    // what came is safe.
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, qApp, [](QSessionManager&) {
        if (auto* const descarga = qobject_cast<Descarga*>(Transferencia_En_Curso()))
            descarga->Asegurar();
    });
    // The model's dialog has a loop of its own, in which the run may have been ended already.
    if (!interfaz.Terminada()) QCoreApplication::exec();
    return interfaz.Estado();
}

} // namespace

int Ejecutar_Programa(const QString& ruta)
{
    Interfaz_Qt interfaz;
    Interfaz* const anterior = Poner_Interfaz(&interfaz);
    Conectar_Dialogos(interfaz);
    const int estado = Arrancar_Y_Esperar(ruta, interfaz);
    Base_Datos.reset();
    Poner_Interfaz(anterior);
    return estado;
}
