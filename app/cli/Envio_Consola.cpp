#include "app/cli/Envio_Consola.h"

#include "transfer/enlace/Envio.h"
#include "transfer/enlace/Puerto_Qt.h"
#include "transfer/Peticiones_Transfer.h"

#include <QEventLoop>
#include <QScopeGuard>

bool Envio_Consola::Correr(const Contexto& c, const std::function<void()>& camino) const
{
    auto puerto = std::make_unique<Puerto_Qt>(dispositivo);
    Puerto_Qt* const el_puerto = puerto.get();
    Envio envio(std::move(puerto));
    // Without a dialog to close, a lost cable ends the order.
    QObject::connect(el_puerto, &Puerto_Serie::perdido, &envio, &Envio::Abandonar,
                     Qt::QueuedConnection);
    envio.Poner_Seguimiento(seguimiento);
    QEventLoop espera;
    QObject::connect(&envio, &Envio::terminada, &espera, &QEventLoop::quit, Qt::QueuedConnection);
    Peticiones_Transfer de_consola = Peticiones_De_Transfer();
    de_consola.Dialogo_Envio = [&envio] { return &envio; };
    de_consola.Mostrar_Envio = [&] {
        QObject::connect(&envio, &Envio::etiqueta_cambiada, &espera,
                         [&c](const QString& texto) { c.Mensaje(QString(texto).remove(u'&')); });
        envio.BtnIniciar();
        if (envio.En_Marcha()) espera.exec();
    };
    const auto antes = std::exchange(Peticiones_De_Transfer(), de_consola);
    const auto devolver = qScopeGuard([&antes] { Peticiones_De_Transfer() = antes; });
    camino();
    if (!envio.Resultado().resumen.isEmpty()) c.Linea(envio.Resultado().resumen);
    return envio.Resultado().hecho;
}
