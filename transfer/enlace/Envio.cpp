#include "transfer/enlace/Envio.h"

#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Reloj.h"
#include "core/Sucesos.h"
#include "transfer/Series.h"

#include <QPointer>

namespace {

const QString PULSE_INICIAR = "Pulse &Iniciar para comenzar la comunicación ...";

} // namespace

Envio::Envio(std::unique_ptr<Puerto_Serie> p, QObject* padre)
    : Conversacion(std::move(p), padre), familia(&Familia_Actual())
{
    connect(&timer1, &QTimer::timeout, this, &Envio::Tic);
}

Envio::~Envio()
{
    Envio::Abandonar();
}

void Envio::Preparar(const QString& cabecera, const QString& texto)
{
    familia = &Familia_Actual();
    datos = {0, cabecera, texto};
}

void Envio::Inicia_Envio(int tipo)
{
    datos.tipo = tipo;
    resultado = {};
    Poner_Etiqueta(PULSE_INICIAR);
    Poner_Rayo(false);
    Poner_Habilitado(true);
}

void Envio::BtnIniciar()
{
    const Serie_En_Linea* const serie = Serie_De(*familia);
    if (!Iniciar_Habilitado() || !serie || !serie->emisor || !Empezar()) return;
    Poner_Etiqueta("Abriendo comunicación");
    Interfaz_Actual().Repintar();
    if (!Abrir_Puerto()) {
        Abandonar();
        Q_EMIT cerrar();
        return;
    }
    // What waits in the port was said before anything was asked.
    while (El_Puerto().Leer()) {
    }
    Poner_Habilitado(false);
    emisor = serie->emisor(datos);
    Poner_Barra(0, emisor->Maximo());
    Situar_Rayo();
    cronometro.start();
    resultado = {};
    timer1.setInterval(Reloj_Actual().Espera(emisor->Plazo()));
    const QPointer<Envio> aqui(this);
    Empezar_Traza();
    Hacer(emisor->Empezar_Envio());
    if (aqui && En_Marcha() && emisor->Plazo() > 0) timer1.start();
}

void Envio::Evento()
{
    if (!emisor || En_Aviso()) return;
    const std::optional<char> c = El_Puerto().Leer();
    if (!c || emisor->Plazo() == 0) return;
    timer1.stop();
    Poner_Rayo(true);
    Mover_Rayo();
    const QPointer<Envio> aqui(this);
    Hacer(emisor->Siguiente_Envio(*c));
    if (aqui && En_Marcha()) timer1.start();
}

void Envio::Tic()
{
    if (emisor && !En_Aviso()) Hacer(emisor->Vencer());
}

// A step may end with this object gone: behind a wait nothing of it is touched unless it goes on.
void Envio::Hacer(Paso_Envio paso)
{
    for (;;) {
        if (!paso.etiqueta.isEmpty()) Poner_Etiqueta(paso.etiqueta);
        if (paso.barra >= 0) Poner_Barra(paso.barra, maximo);
        if (!paso.envia.isEmpty() && !Mandar(paso.envia)) return;
        Trazar(paso.traza);
        Contar();
        if (paso.fin != Fin_Envio::Sigue) {
            Terminar(paso.fin);
            return;
        }
        if (paso.pausa > 0 && !Esperar(paso.pausa)) return;
        if (!paso.encadena) return;
        paso = emisor->Seguir();
    }
}

// @return false when the upload has ended by it
bool Envio::Mandar(const QByteArray& bytes)
{
    const QString mensaje = emisor->Mensaje_De_Fallo();
    if (mensaje.isEmpty()) {
        Enviar(bytes);
        return true;
    }
    try {
        El_Puerto().Enviar(bytes);
        return true;
    } catch (...) {
        const Error_Ejecucion e = Error_En_Curso();
        const Caja_Abierta caja(*this);
        Informe_Error(mensaje, e);
    }
    Cerrar_Cuenta(false);
    Acabar();
    return false;
}

void Envio::Terminar(Fin_Envio fin)
{
    timer1.stop();
    if (fin == Fin_Envio::Rechazado) {
        // The instrument's refusal has no box of its own; the button can try it all again.
        Anotar("Envio", QStringLiteral("(999) Error de Comunicación"));
        Cerrar_Cuenta(false);
        Acabar();
        Poner_Habilitado(true);
        return;
    }
    if (fin == Fin_Envio::Sin_Respuesta) {
        const Caja_Abierta caja(*this);
        Interfaz_Actual().Mensaje(
            "Se superó el tiempo de espera de comunicación, la transferencia se abortará\r"
            "Quizá hay algún problema en el cable o \r"
            "el instrumento no está preparado para la transmisión",
            Icono::Exclamacion);
    }
    Interfaz_Actual().Repintar();
    Cerrar_Puerto();
    Cerrar_Cuenta(fin == Fin_Envio::Hecho);
    Acabar();
    Q_EMIT cerrar();
}

void Envio::Abandonar()
{
    timer1.stop();
    if (En_Marcha() && emisor) {
        Trazar(emisor->Traza_Pendiente());
        Cerrar_Cuenta(false);
    }
    Conversacion::Abandonar();
}

void Envio::Cerrar_Cuenta(bool hecho)
{
    const double segundos = double(cronometro.elapsed()) / 1000;
    resultado.hecho = hecho;
    resultado.resumen = emisor->Resumen() + "; segundos: " + Basico::Formato(segundos, "0.0");
    Trazar({resultado.resumen});
    Q_EMIT cuenta_cambiada(resultado.resumen);
    Q_EMIT Sucesos::Unico().envio_acabado(resultado.resumen);
    emisor.reset();
    traza.clear();
}

void Envio::Poner_Barra(qint64 valor, qint64 tope)
{
    barra = valor;
    maximo = tope;
    Q_EMIT barra_cambiada(valor, tope);
}

void Envio::Contar()
{
    Q_EMIT cuenta_cambiada(emisor->Resumen());
}

void Envio::Empezar_Traza()
{
    traza.clear();
    if (!seguimiento) return;
    const Caja_Abierta caja(*this);
    const QString nombre = Nombre_Log(familia->prefijo_traza, Reloj_Actual().Ahora());
    Iniciar_Log(nombre);
    traza = nombre;
}

void Envio::Trazar(const QStringList& lineas)
{
    if (traza.isEmpty() || lineas.isEmpty()) return;
    const Caja_Abierta caja(*this);
    for (const QString& linea : lineas)
        Escribir_Log(traza, linea);
}
