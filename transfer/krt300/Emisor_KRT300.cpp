#include "transfer/krt300/Emisor_KRT300.h"

#include "core/Ansi.h"
#include "transfer/enlace/Receptor.h"
#include "transfer/krt300/Tramas_KRT300.h"

namespace {

constexpr int INTENTOS_MAXIMOS = 5;
constexpr int MS_PLAZO = 10000;
constexpr int MS_TRAS_RECHAZO = 100;

} // namespace

Emisor_KRT300::Emisor_KRT300(const Datos_Envio& datos) : envio(datos) {}

qint64 Emisor_KRT300::Maximo() const
{
    return envio.datos.size() / Tramas_KRT300::LARGO_BLOQUE + 1;
}

int Emisor_KRT300::Plazo() const
{
    return MS_PLAZO;
}

Paso_Envio Emisor_KRT300::Mandar(const QString& trama, const QString& nombre)
{
    ultima = trama;
    cual = nombre;
    return {.etiqueta = {}, .envia = Ansi::A_Bytes(trama), .traza = {trama}};
}

Paso_Envio Emisor_KRT300::Mandar_Bloque()
{
    const qint64 este = bloque++;
    return Mandar(Tramas_KRT300::Bloque(envio.datos, este),
                  QStringLiteral("el bloque %1").arg(este));
}

Paso_Envio Emisor_KRT300::Empezar_Envio()
{
    Paso_Envio paso;
    if (envio.tipo == ENVIO_COORDENADAS) {
        paso = Mandar(Tramas_KRT300::Apertura(), QStringLiteral("la apertura"));
    } else {
        cabecera_enviada = true;
        paso = Mandar_Bloque();
    }
    paso.etiqueta = QStringLiteral("Inicio de Envío");
    return paso;
}

Paso_Envio Emisor_KRT300::Siguiente_Envio(char caracter)
{
    if (acabado) return {};
    if (caracter == Control::ACK) return Aceptada();
    if (caracter == Control::NAK) return Rechazada();
    return {};
}

Paso_Envio Emisor_KRT300::Aceptada()
{
    intentos = 0;
    Paso_Envio paso;
    if ((bloque - 1) * Tramas_KRT300::LARGO_BLOQUE > envio.datos.size()) {
        acabado = true;
        paso = Mandar(Tramas_KRT300::Cierre(), QStringLiteral("el cierre"));
        paso.etiqueta = QStringLiteral("Envio Finalizado");
        paso.fin = Fin_Envio::Hecho;
        return paso;
    }
    if (cabecera_enviada) {
        paso = Mandar_Bloque();
    } else {
        cabecera_enviada = true;
        paso = Mandar(envio.cabecera, QStringLiteral("la cabecera"));
    }
    paso.etiqueta = QStringLiteral("Enviando Datos...");
    paso.barra = bloque - 1;
    return paso;
}

Paso_Envio Emisor_KRT300::Rechazada()
{
    ++rechazos;
    if (intentos++ >= INTENTOS_MAXIMOS) {
        acabado = true;
        Paso_Envio paso;
        paso.etiqueta = QStringLiteral("El aparato rechaza %1; no se enviará nada más").arg(cual);
        paso.fin = Fin_Envio::Rechazado;
        return paso;
    }
    ++repeticiones;
    Paso_Envio paso = Mandar(ultima, cual);
    paso.pausa = MS_TRAS_RECHAZO;
    return paso;
}

Paso_Envio Emisor_KRT300::Vencer()
{
    Paso_Envio paso;
    if (!acabado && ++intentos >= INTENTOS_MAXIMOS) {
        acabado = true;
        paso.fin = Fin_Envio::Sin_Respuesta;
    }
    return paso;
}

QString Emisor_KRT300::Resumen() const
{
    return QStringLiteral("Bloques enviados: %1 de %2; rechazos: %3; repeticiones: %4")
        .arg(bloque - 1)
        .arg(Maximo())
        .arg(rechazos)
        .arg(repeticiones);
}
