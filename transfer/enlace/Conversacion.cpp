#include "transfer/enlace/Conversacion.h"

#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Reloj.h"
#include "core/Sucesos.h"
#include "transfer/enlace/Puertos.h"

#include <QEventLoop>
#include <QPointer>
#include <QTimer>

namespace {

// One user, one cable: the transfer under way is one for the program, not for a dialog.
Conversacion* en_curso = nullptr;

// All there are: one that waits for its button holds the port too.
QList<Conversacion*>& Todas()
{
    static QList<Conversacion*> todas;
    return todas;
}

} // namespace

Conversacion* Transferencia_En_Curso()
{
    return en_curso;
}

bool Reclamar_La_En_Curso()
{
    if (!en_curso) return false;
    Interfaz_Actual().Pitar();
    Q_EMIT en_curso->reclamada();
    return true;
}

Conversacion::Conversacion(std::unique_ptr<Puerto_Serie> p, QObject* padre)
    : QObject(padre), puerto(std::move(p))
{
    Todas() << this;
    connect(puerto.get(), &Puerto_Serie::evento, this, [this] {
        try {
            Evento();
        } catch (...) {
            Anotar_Fallo("Conversacion");
        }
    });
    connect(puerto.get(), &Puerto_Serie::perdido, this, [this](const QString& motivo) {
        if (En_Marcha()) Poner_Etiqueta(motivo);
    });
    connect(&Sucesos::Unico(), &Sucesos::ajustes_guardados, this, &Conversacion::Cerrar_Puerto);
}

Conversacion::~Conversacion()
{
    Todas().removeOne(this);
    puerto->disconnect(this);
    if (En_Marcha()) en_curso = nullptr;
}

bool Conversacion::Abrir_Puerto()
{
    try {
        Poner_Habilitado(true);
        if (puerto->Abierto()) return true;
        if (Reclamar_El_Puerto()) return false;
        puerto->Abrir(Numero_Puerto(Puerto), Texto_Ajustes_Puerto());
        puerto->RThreshold = 1;
        return true;
    } catch (...) {
        Interfaz_Actual().Mensaje(
            Texto_Informe("Se produjo un error al Abrir el Puerto; revise la configuración",
                          Error_En_Curso()),
            Icono::Critico);
        return false;
    }
}

bool Conversacion::Reclamar_El_Puerto() const
{
    for (Conversacion* const otra : std::as_const(Todas())) {
        if (otra == this || !otra->puerto->Abierto()) continue;
        Interfaz_Actual().Pitar();
        Q_EMIT otra->reclamada();
        return true;
    }
    return false;
}

void Conversacion::Cerrar_Puerto()
{
    if (puerto->Abierto()) puerto->Cerrar();
    puerto->RThreshold = 0;
}

void Conversacion::Abandonar()
{
    Cerrar_Puerto();
    if (En_Marcha()) Acabar();
}

bool Conversacion::Confirmar_Cierre()
{
    if (!En_Marcha() || Interfaz_Actual().Terminada()) return true;
    if (En_Aviso()) return false;
    const Caja_Abierta caja(*this);
    return Interfaz_Actual().Preguntar("La transferencia no ha terminado, ¿ Desea abandonarla ?");
}

Conversacion::Caja_Abierta::Caja_Abierta(Conversacion& conversacion) : de(&conversacion)
{
    ++de->cajas;
}

Conversacion::Caja_Abierta::~Caja_Abierta()
{
    if (!de) return;
    --de->cajas;
    if (de->puerto->Abierto()) QTimer::singleShot(0, de->puerto.get(), &Puerto_Serie::Entregar);
}

bool Conversacion::En_Marcha() const
{
    return en_curso == this;
}

bool Conversacion::Empezar()
{
    if (!En_Marcha() && Reclamar_La_En_Curso()) return false;
    en_curso = this;
    return true;
}

void Conversacion::Acabar()
{
    if (En_Marcha()) en_curso = nullptr;
    Q_EMIT terminada();
}

void Conversacion::Enviar(const QByteArray& bytes)
{
    try {
        puerto->Enviar(bytes);
    } catch (...) {
        Anotar_Fallo("Conversacion");
    }
}

bool Conversacion::Esperar(int ms)
{
    if (!En_Marcha()) return false;
    QEventLoop espera;
    bool sigue = true;
    const auto cortar = [&] {
        sigue = false;
        espera.quit();
    };
    connect(this, &Conversacion::terminada, &espera, cortar);
    connect(this, &QObject::destroyed, &espera, cortar);
    QTimer::singleShot(Reloj_Actual().Espera(ms), Qt::PreciseTimer, &espera, &QEventLoop::quit);
    espera.exec();
    return sigue;
}

void Conversacion::Poner_Etiqueta(const QString& texto)
{
    if (texto == etiqueta) return;
    etiqueta = texto;
    Q_EMIT etiqueta_cambiada(texto);
}

void Conversacion::Poner_Rayo(bool visible)
{
    if (visible == rayo_visible) return;
    rayo_visible = visible;
    Q_EMIT rayo_cambiado(visible);
}

void Conversacion::Poner_Habilitado(bool habilitado)
{
    if (habilitado == iniciar_habilitado) return;
    iniciar_habilitado = habilitado;
    Q_EMIT iniciar_habilitado_cambiado(habilitado);
}

void Conversacion::Mover_Rayo()
{
    lugar = (lugar + 1) % LUGARES_RAYO;
    Q_EMIT rayo_movido(lugar);
    Interfaz_Actual().Repintar();
}
