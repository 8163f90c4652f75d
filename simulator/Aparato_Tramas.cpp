#include "simulator/Aparato_Tramas.h"

namespace {

constexpr int CIFRAS_SUMA = 3;
constexpr int BLOQUE_CARGA = 128;
const QByteArray RUIDO("\x7f~?\r\n\x01", 6);

} // namespace

QByteArray simulador::Suma_De_Trama(const QByteArray& bytes)
{
    unsigned char suma = 0;
    for (const char c : bytes)
        suma ^= static_cast<unsigned char>(c);
    return QByteArray::number(suma).rightJustified(CIFRAS_SUMA, '0');
}

simulador::Aparato_Tramas::Aparato_Tramas(const Ajustes& dados, Salida s, Nota n)
    : Aparato(std::move(s), std::move(n)), ajustes(dados)
{
    for (const QByteArray& r : ajustes.libreta.value_or(QList<QByteArray>()))
        datos += '_' + r;
    pendientes = ajustes.fallos;
}

void simulador::Aparato_Tramas::Abrir()
{
    estado = Estado::Espera;
    terminado = false;
    trama = 0;
    bloques = 0;
    pendientes = ajustes.fallos;
    entrada.clear();
    ultimo_bloque.clear();
    recibido.clear();
}

int simulador::Aparato_Tramas::Tramas() const
{
    return static_cast<int>((datos.size() + ajustes.bloque - 1) / ajustes.bloque);
}

int simulador::Aparato_Tramas::Ultima() const
{
    return std::min(Tramas(), ajustes.fallos.fin.value_or(Tramas()));
}

QByteArray simulador::Aparato_Tramas::Bloque(int n) const
{
    return datos.mid(static_cast<qsizetype>(n - 1) * ajustes.bloque, ajustes.bloque)
        .leftJustified(ajustes.bloque, ' ');
}

void simulador::Aparato_Tramas::Recibir(char c)
{
    switch (estado) {
    case Estado::Espera:
        if (c == ENQ && ajustes.libreta && ajustes.fallos.silencio != 0) {
            terminado = false;
            trama = 0;
            pendientes = ajustes.fallos;
            Siguiente();
        } else if (c == STX) {
            entrada.clear();
            estado = Estado::En_Trama;
        }
        return;
    case Estado::Trama_Enviada:
    case Estado::Eot_Enviado:
        Seguir_Envio(c);
        return;
    case Estado::En_Trama:
        if (c == ETX)
            Cerrar_Trama();
        else
            entrada += c;
        return;
    case Estado::Callado:
        return;
    }
}

// ---- sending the field book

void simulador::Aparato_Tramas::Enviar_Trama(int n)
{
    const QByteArray cuerpo = Bloque(n) + char('0' + (n - 1) % 10);
    if (pendientes.eot == n) {
        Anotar(QStringLiteral("EOT en mitad de la trama %1").arg(n));
        Enviar(STX + cuerpo.left(cuerpo.size() / 2) + EOT);
        estado = Estado::Eot_Enviado;
        return;
    }
    QByteArray suma = Suma_De_Trama(cuerpo);
    if (int& veces = pendientes.sumas[n]; veces > 0) {
        --veces;
        suma = Suma_De_Trama(cuerpo + '\x01');
        Anotar(QStringLiteral("trama %1 con la suma equivocada").arg(n));
    }
    const bool ruido = pendientes.ruido == n || pendientes.ruido == 0;
    Enviar((ruido ? RUIDO : QByteArray()) + STX + cuerpo + suma + ETX +
           (ajustes.fin_linea ? "\r\n" : ""));
    estado = Estado::Trama_Enviada;
}

void simulador::Aparato_Tramas::Seguir_Envio(char c)
{
    if (c == ACK && estado == Estado::Eot_Enviado) {
        estado = Estado::Espera;
        terminado = true;
        Anotar(QStringLiteral("datos entregados"));
    } else if (c == ACK) {
        Siguiente();
    } else if (c == SI && estado == Estado::Trama_Enviada) {
        Anotar(QStringLiteral("trama %1 rechazada").arg(trama));
        if (ajustes.repetir)
            Enviar_Trama(trama);
        else
            Siguiente();
    }
}

void simulador::Aparato_Tramas::Siguiente()
{
    if (ajustes.fallos.silencio && trama >= *ajustes.fallos.silencio) {
        Anotar(QStringLiteral("silencio tras la trama %1").arg(trama));
        estado = Estado::Callado;
    } else if (trama < Ultima()) {
        Enviar_Trama(++trama);
    } else {
        Enviar(QByteArray(1, EOT));
        estado = Estado::Eot_Enviado;
    }
}

// ---- receiving an upload

void simulador::Aparato_Tramas::Cerrar_Trama()
{
    estado = Estado::Espera;
    if (ajustes.fallos.silencio && bloques >= *ajustes.fallos.silencio) {
        estado = Estado::Callado;
        Anotar(QStringLiteral("silencio tras el bloque %1").arg(bloques));
    } else if (entrada == QByteArray(1, EOT)) {
        terminado = true;
        Anotar(QStringLiteral("carga recibida: %1 bloques").arg(bloques));
        Enviar(QByteArray(1, ACK));
    } else if (entrada == "F00F000") {
        recibido.clear();
        bloques = 0;
        terminado = false;
        Aceptar();
    } else {
        Contestar_Bloque();
    }
}

void simulador::Aparato_Tramas::Contestar_Bloque()
{
    const QByteArray cuerpo = entrada.chopped(std::min<qsizetype>(CIFRAS_SUMA, entrada.size()));
    if (entrada.size() <= CIFRAS_SUMA || entrada.right(CIFRAS_SUMA) != Suma_De_Trama(cuerpo)) {
        Rechazar(QStringLiteral("suma equivocada"));
        return;
    }
    // The header is a constant record of the points' upload; it carries no sequence digit.
    if (cuerpo.size() != BLOQUE_CARGA + 1) {
        Anotar(QStringLiteral("cabecera: %1").arg(QString::fromLatin1(cuerpo)));
        Aceptar();
        return;
    }
    if (bloques > 0 && cuerpo == ultimo_bloque) {
        Anotar(QStringLiteral("bloque %1 repetido").arg(bloques));
        Aceptar();
        return;
    }
    if (cuerpo.back() != char('0' + bloques % 10)) {
        Rechazar(QStringLiteral("secuencia %1").arg(QChar::fromLatin1(cuerpo.back())));
        return;
    }
    if (int& veces = pendientes.rechazos[bloques + 1]; veces > 0) {
        --veces;
        Rechazar(QStringLiteral("a petición"));
        return;
    }
    ++bloques;
    terminado = false;
    ultimo_bloque = cuerpo;
    recibido += cuerpo.chopped(1);
    Aceptar();
}

void simulador::Aparato_Tramas::Aceptar()
{
    Enviar(QByteArray(1, ACK));
}

void simulador::Aparato_Tramas::Rechazar(const QString& motivo)
{
    Anotar(QStringLiteral("bloque %1 rechazado: %2").arg(bloques + 1).arg(motivo));
    Enviar(QByteArray(1, NAK));
}

QList<QByteArray> simulador::Aparato_Tramas::Registros_Recibidos() const
{
    QList<QByteArray> registros = recibido.split('_');
    // What stands ahead of the first "_" is no record, and the last one took the block's padding.
    if (!registros.isEmpty()) registros.removeFirst();
    if (!registros.isEmpty()) {
        QByteArray& ultimo = registros.last();
        while (ultimo.endsWith(' '))
            ultimo.chop(1);
    }
    return registros;
}
