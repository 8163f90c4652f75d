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
const QString SE_CONSERVA = "lo recibido se conserva";

QString Pedir_Carpeta()
{
    const auto elegido = Interfaz_Actual().Pedir_Fichero(
        {.titulo = "No se puede escribir en LOG; elija otra carpeta para guardar lo recibido",
         .filtro = "Recepciones (*.dia)|*.dia",
         .carpeta = {},
         .extension = "dia",
         .guardar = true});
    return elegido && !elegido->nombre.isEmpty() ? QFileInfo(elegido->nombre).absolutePath()
                                                 : QString();
}

} // namespace

Descarga::Descarga(std::unique_ptr<Puerto_Serie> p, QObject* padre)
    : Conversacion(std::move(p), padre), familia(&Familia_Actual())
{
    datos.maquina = Clave_Estacion;
    connect(&timer1, &QTimer::timeout, this, &Descarga::Tic);
    connect(&diario, &Diario_Recepcion::fallo_cambiado, this, [this] {
        if (En_Marcha() && !procesando) Poner_Etiqueta(Etiqueta_Recibiendo());
    });
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
    if (const QString motivo = Diario_Recepcion::Impedimento(); !motivo.isEmpty()) {
        const Caja_Abierta caja(*this);
        Interfaz_Actual().Mensaje(
            "No se puede escribir en la carpeta LOG (" + motivo +
                "); lo que se reciba estará sólo en memoria hasta que se guarde",
            Icono::Exclamacion);
    }
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
    // Data that began to come while the box stood has waited: the transfer goes on with it.
    if (El_Puerto().Pendientes() > 0) {
        QTimer::singleShot(0, &El_Puerto(), &Puerto_Serie::Entregar);
        return;
    }
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
    Poner_Etiqueta(Etiqueta_Recibiendo());
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
    if (!respuesta.envia.isEmpty()) {
        // What the instrument hears to be received it forgets.
        diario.Entregar();
        Enviar(respuesta.envia);
    }
    if (respuesta.fin) Saltar_a_Sesiones();
}

QString Descarga::Etiqueta_Recibiendo() const
{
    if (diario.Fallo().isEmpty()) return RECIBIENDO;
    return RECIBIENDO +
           " No se puede escribir lo recibido, que queda en memoria: " + diario.Fallo();
}

void Descarga::Saltar_a_Sesiones()
{
    Preparar_Dialogo();
    Cerrar_Puerto();
    if (Recibido().isEmpty()) {
        resultado.guardada = receptor && receptor->Sin_Datos();
        Acabar();
        if (const QString falta = Que_Falta(); !falta.isEmpty()) Poner_Etiqueta(falta);
        return;
    }
    Poner_Etiqueta("Procesando Datos Recibidos...");
    Interfaz_Actual().Repintar();
    Procesar();
    Acabar();
    Poner_Rayo(false);
    const QString falta = Que_Falta();
    if (falta.isEmpty()) {
        Q_EMIT ocultar();
        Poner_Etiqueta("Pulse &Iniciar para empezar la descarga");
    } else {
        Poner_Etiqueta(falta);
    }
    if (Fila_De(Operacion(datos.operacion)).muestra_sesiones) Q_EMIT mostrar_sesiones();
    // The dialog stays to tell what is missing, in front of the sessions.
    if (!falta.isEmpty()) Q_EMIT reclamada();
    if (resultado.error) Avisar_Sin_Guardar();
}

void Descarga::Procesar()
{
    diario.Al_Disco();
    procesando = true;
    try {
        datos.buffer = Recibido();
        resultado = Procesar_Recepcion(datos);
    } catch (...) {
        Anotar_Fallo("Procesar_Recepcion");
        resultado.error = Error_En_Curso();
    }
    procesando = false;
    datos.buffer.clear();
}

void Descarga::Abandonar()
{
    timer1.stop();
    Conversacion::Abandonar();
}

void Descarga::Dejarlo(const QString& motivo)
{
    if (En_Marcha()) Interrumpir(motivo);
}

void Descarga::Interrumpir(const QString& motivo)
{
    Abandonar();
    Preparar_Dialogo();
    const QString falta = Que_Falta();
    Poner_Etiqueta(falta.isEmpty() ? motivo : motivo + ": " + falta);
}

void Descarga::Acabar()
{
    if (!receptor) {
        Conversacion::Acabar();
        return;
    }
    resultado.faltas += receptor->Faltas();
    receptor.reset();
    try {
        if (resultado.Completa() && !Base_Datos) throw Error_Ejecucion(91);
        if (resultado.Completa()) Base_Datos->Sincronizar();
    } catch (...) {
        Anotar_Fallo("Descarga");
        resultado.error = Error_En_Curso();
    }
    perdido = false;
    if (!diario.Terminar(resultado.Completa())) Guardar_En_Otra_Carpeta();
    Conversacion::Acabar();
}

// The last resort is the user's temporary folder, when he can't be asked or names no other.
void Descarga::Guardar_En_Otra_Carpeta()
{
    QString elegida;
    try {
        if (!Interfaz_Actual().Terminada()) elegida = Pedir_Carpeta();
    } catch (...) {
        Anotar_Fallo("Descarga");
    }
    for (const QString& carpeta : {elegida, QDir::tempPath()}) {
        if (carpeta.isEmpty()) continue;
        try {
            const QString fichero = diario.Guardar_En(carpeta);
            Interfaz_Actual().Mensaje("Lo recibido se ha guardado en " + fichero,
                                      Icono::Informacion);
            return;
        } catch (...) {
            Anotar_Fallo("Descarga");
            if (!diario.Conservado().isEmpty()) return;
        }
    }
    perdido = true;
}

void Descarga::Avisar_Sin_Guardar() const
{
    Informe_Error(
        "No se ha podido guardar la descarga; " +
            (perdido ? QStringLiteral("lo recibido no se ha podido conservar") : SE_CONSERVA),
        *resultado.error);
}

QString Descarga::Que_Falta() const
{
    if (Conservado().isEmpty() && !perdido) return {};
    const Serie_En_Linea* const serie = Serie_De(*familia);
    QString frase = Frase_Faltas(resultado.faltas, serie ? serie->unidad : QString());
    if (resultado.error || frase.isEmpty())
        frase = QString("La descarga no se ha guardado") + (resultado.error ? "" : " entera") +
                (frase.isEmpty() ? "" : ": ") + frase;
    return frase + "; " + (perdido ? "lo recibido no se ha podido conservar" : SE_CONSERVA);
}
