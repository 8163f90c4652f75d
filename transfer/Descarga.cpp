#include "transfer/Descarga.h"

#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Reloj.h"
#include "core/Sucesos.h"
#include "transfer/NV400.h"
#include "transfer/Puertos.h"

namespace {

constexpr int MS_SONDEO = 500;
constexpr int INTENTOS_MAXIMOS = 10;
constexpr int EVENTOS_POR_PASO = 46;

const QString PULSE_INICIAR = "Pulse [&Iniciar] para comenzar la comunicación...";
const QString ESPERANDO = "Esperando Datos...";
const QString RECIBIENDO = "Recibiendo datos ...";

const QList<int> OPERACIONES_CON_SESION = {0, 1, 3, 4, 6, 7, 11};

} // namespace

Descarga::Descarga(std::unique_ptr<Puerto_Serie> p, QObject* padre)
    : QObject(padre), puerto(std::move(p)),
      comm{[this](const QByteArray& b) { Enviar(b); }, [this] { Saltar_a_Sesiones(); }}
{
    connect(puerto.get(), &Puerto_Serie::evento, this, &Descarga::Evento);
    connect(puerto.get(), &Puerto_Serie::perdido, this, [this](const QString& motivo) {
        if (en_marcha) Poner_Etiqueta(motivo);
    });
    connect(&timer1, &QTimer::timeout, this, &Descarga::Tic);
    connect(&Sucesos::Unico(), &Sucesos::ajustes_guardados, this, &Descarga::Cerrar_Puerto);
    datos.maquina = Clave_Estacion;
    Preparar_Dialogo();
    Poner_Habilitado(true);
}

Descarga::~Descarga()
{
    Abandonar();
}

void Descarga::Preparar(int operacion, const QString& nombre, int destino)
{
    datos = {QString(), nombre, operacion, destino, Clave_Estacion, Nombre_Estacion};
    if (datos.maquina == u"NV400") Recepcion.Acumulado.clear();
}

bool Descarga::Abrir_Puerto()
{
    try {
        Poner_Habilitado(true);
        if (puerto->Abierto()) return true;
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

void Descarga::Cerrar_Puerto()
{
    if (puerto->Abierto()) puerto->Cerrar();
    puerto->RThreshold = 0;
}

void Descarga::Preparar_Dialogo()
{
    Preparar_Recepcion();
    if (datos.maquina == u"NV400") {
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
    if (!iniciar_habilitado) return;
    Recepcion.Buffer.clear();
    resultado = {};
    en_marcha = true;
    diario.Empezar(datos.maquina, datos.operacion, Reloj_Actual().Ahora());
    Poner_Habilitado(false);
    lugar = 0;
    Poner_Etiqueta(ESPERANDO);
    Interfaz_Actual().Repintar();
    if (datos.maquina != u"KRT800") Enviar(QByteArray(1, Control::ENQ));
    timer1.start(Reloj_Actual().Espera(MS_SONDEO));
    QTimer::singleShot(0, puerto.get(), &Puerto_Serie::Entregar);
}

void Descarga::Tic()
{
    if (en_aviso) return;
    if (datos.maquina == u"KRT300" || datos.maquina == u"PX7") Enviar(QByteArray(1, Control::ENQ));
    else if (datos.maquina == u"NV400") Enviar(LINEA_NAK);
    if (++intentos == INTENTOS_MAXIMOS) Error_De_Cable();
}

void Descarga::Error_De_Cable()
{
    en_aviso = true;
    Interfaz_Actual().Mensaje("Error de comunicación ,compruebe que el cable esta bien conectado a su "
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
    if (iniciar_habilitado || en_aviso || procesando) return;
    try {
        Recibir_Byte();
    } catch (...) {
        Anotar_Fallo("Descarga");
    }
}

void Descarga::Recibir_Byte()
{
    timer1.stop();
    Poner_Etiqueta(RECIBIENDO);
    Poner_Rayo(true);
    Mover_Rayo();
    const std::optional<char> c = puerto->Leer();
    if (!c) return;
    diario.Anotar_Byte(*c);
    Recibir_Caracter(*c, datos.maquina, comm);
}

void Descarga::Mover_Rayo()
{
    if (++eventos < EVENTOS_POR_PASO) return;
    eventos = 0;
    lugar = (lugar + 1) % int(std::size(LUGARES_RAYO_DESCARGA));
    Q_EMIT rayo_movido(lugar);
    Interfaz_Actual().Repintar();
}

void Descarga::Saltar_a_Sesiones()
{
    Preparar_Dialogo();
    Cerrar_Puerto();
    if (Recepcion.Buffer.isEmpty()) {
        Terminar();
        return;
    }
    Poner_Etiqueta("Procesando Datos Recibidos...");
    Interfaz_Actual().Repintar();
    Procesar();
    Terminar();
    Q_EMIT ocultar();
    Poner_Etiqueta("Pulse &Iniciar para empezar la descarga");
    Poner_Rayo(false);
    if (OPERACIONES_CON_SESION.contains(datos.operacion)) Q_EMIT mostrar_sesiones();
}

void Descarga::Procesar()
{
    diario.Al_Disco();
    procesando = true;
    try {
        datos.buffer = std::exchange(Recepcion.Buffer, QString());
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
    Cerrar_Puerto();
    if (en_marcha) Terminar();
}

void Descarga::Terminar()
{
    bool guardada = resultado.completa && !resultado.sesiones.isEmpty();
    try {
        if (guardada && !Base_Datos) throw Error_Ejecucion(91);
        if (guardada) Base_Datos->Sincronizar();
    } catch (...) {
        guardada = false;
        Anotar_Fallo("Descarga");
    }
    diario.Terminar(guardada);
    en_marcha = false;
    Q_EMIT terminada();
}

void Descarga::Enviar(const QByteArray& bytes)
{
    try {
        puerto->Enviar(bytes);
    } catch (...) {
        // A port that fails to send says so in the label (lost) or by the silence of the instrument.
        Anotar_Fallo("Descarga");
    }
}

void Descarga::Poner_Etiqueta(const QString& texto)
{
    if (texto == etiqueta) return;
    etiqueta = texto;
    Q_EMIT etiqueta_cambiada(texto);
}

void Descarga::Poner_Rayo(bool visible)
{
    if (visible == rayo_visible) return;
    rayo_visible = visible;
    Q_EMIT rayo_cambiado(visible);
}

void Descarga::Poner_Habilitado(bool habilitado)
{
    if (habilitado == iniciar_habilitado) return;
    iniciar_habilitado = habilitado;
    Q_EMIT iniciar_habilitado_cambiado(habilitado);
}
