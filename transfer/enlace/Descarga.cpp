#include "transfer/enlace/Descarga.h"

#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Reloj.h"
#include "transfer/Proceso_Recepcion.h"
#include "transfer/Series.h"

namespace {

constexpr int MS_SONDEO = 500;
constexpr int INTENTOS_MAXIMOS = 10;
constexpr int EVENTOS_POR_PASO = 46;

const QString PULSE_INICIAR = "Pulse [&Iniciar] para comenzar la comunicación...";
const QString ESPERANDO = "Esperando Datos...";
const QString RECIBIENDO = "Recibiendo datos ...";

} // namespace

Descarga::Descarga(std::unique_ptr<Puerto_Serie> p, QObject* padre)
    : Conversacion(std::move(p), padre), familia(&Familia_Actual())
{
    datos.maquina = Clave_Estacion;
    connect(&timer1, &QTimer::timeout, this, &Descarga::Tic);
    Preparar_Dialogo();
    Poner_Habilitado(true);
}

Descarga::~Descarga()
{
    Descarga::Abandonar();
}

void Descarga::Preparar(int operacion, const QString& nombre, int destino)
{
    familia = &Familia_Actual();
    datos = {QString(), nombre, operacion, destino, Clave_Estacion, Nombre_Estacion};
}

void Descarga::Preparar_Dialogo()
{
    // The level's dialog waits from the start; its button comes with the port.
    if (familia->serie == Serie::Nivel) {
        Poner_Etiqueta(ESPERANDO);
        Poner_Habilitado(false);
    } else {
        Poner_Etiqueta(PULSE_INICIAR);
    }
    timer1.stop();
    Poner_Rayo(false);
}

void Descarga::BtnIniciar()
{
    if (!Empezar_Recepcion()) return;
    if (!familia->arranque.isEmpty()) Enviar(familia->arranque);
    timer1.start(Reloj_Actual().Espera(MS_SONDEO));
    QTimer::singleShot(0, &El_Puerto(), &Puerto_Serie::Entregar);
}

bool Descarga::Empezar_Recepcion()
{
    if (!Iniciar_Habilitado() || !Empezar()) return false;
    const Serie_En_Linea* const serie = Serie_De(*familia);
    receptor = serie ? serie->receptor() : nullptr;
    resultado = {};
    diario.Empezar(datos.maquina, datos.operacion, Reloj_Actual().Ahora());
    Poner_Habilitado(false);
    Situar_Rayo();
    Poner_Etiqueta(ESPERANDO);
    Interfaz_Actual().Repintar();
    return true;
}

void Descarga::Tic()
{
    if (en_aviso || En_Aviso()) return;
    if (!familia->sondeo.isEmpty()) Enviar(familia->sondeo);
    if (++intentos == INTENTOS_MAXIMOS) Error_De_Cable();
}

void Descarga::Error_De_Cable()
{
    en_aviso = true;
    Interfaz_Actual().Mensaje(
        "Error de comunicación ,compruebe que el cable esta bien conectado a su "
        "PC \r\n y que la configuración de Comunicaciones es correcta",
        Icono::Exclamacion);
    en_aviso = false;
    intentos = 1;
    timer1.stop();
    Saltar_a_Sesiones();
    Q_EMIT cerrar();
}

void Descarga::Evento()
{
    if (Iniciar_Habilitado() && sin_boton && !En_Aviso()) Empezar_Recepcion();
    if (Iniciar_Habilitado() || en_aviso || En_Aviso() || procesando) return;
    Recibir_Byte();
}

void Descarga::Recibir_Byte()
{
    timer1.stop();
    Poner_Etiqueta(RECIBIENDO);
    Poner_Rayo(true);
    if (++eventos >= EVENTOS_POR_PASO) {
        eventos = 0;
        Mover_Rayo();
    }
    const std::optional<char> c = El_Puerto().Leer();
    if (!c) return;
    diario.Anotar_Byte(*c);
    if (!receptor) return;
    const Respuesta_Recepcion respuesta = receptor->Recibir(*c);
    if (!respuesta.envia.isEmpty()) Enviar(respuesta.envia);
    if (respuesta.fin) Saltar_a_Sesiones();
}

void Descarga::Saltar_a_Sesiones()
{
    Preparar_Dialogo();
    Cerrar_Puerto();
    if (Recibido().isEmpty()) {
        Acabar();
        return;
    }
    Poner_Etiqueta("Procesando Datos Recibidos...");
    Interfaz_Actual().Repintar();
    Procesar();
    Acabar();
    Q_EMIT ocultar();
    Poner_Etiqueta("Pulse &Iniciar para empezar la descarga");
    Poner_Rayo(false);
    if (Fila_De(Operacion(datos.operacion)).muestra_sesiones) Q_EMIT mostrar_sesiones();
}

void Descarga::Procesar()
{
    diario.Al_Disco();
    procesando = true;
    try {
        datos.buffer = Recibido();
        resultado = Procesar_Recepcion(datos);
    } catch (...) {
        // The user hears nothing more here; the journal keeps what came.
        Anotar_Fallo("Procesar_Recepcion");
    }
    procesando = false;
    datos.buffer.clear();
}

void Descarga::Abandonar()
{
    timer1.stop();
    Conversacion::Abandonar();
}

void Descarga::Acabar()
{
    // A library is stored without a session.
    const bool sin_sesion = Operacion(datos.operacion) == Operacion::Libreria;
    bool guardada = resultado.completa && (sin_sesion || !resultado.sesiones.isEmpty());
    try {
        if (guardada && !Base_Datos) throw Error_Ejecucion(91);
        if (guardada) Base_Datos->Sincronizar();
    } catch (...) {
        guardada = false;
        Anotar_Fallo("Descarga");
    }
    receptor.reset();
    diario.Terminar(guardada);
    Conversacion::Acabar();
}
