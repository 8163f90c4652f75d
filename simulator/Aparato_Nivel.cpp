#include "simulator/Aparato_Nivel.h"

namespace {

const QByteArray RUIDO("~?\r\n", 4);

QByteArray Linea_Con_Suma(const QByteArray& registro, bool mal)
{
    const QByteArray carga = registro.endsWith(',') ? registro : registro + ',';
    const char suma = simulador::Suma_De_Linea(carga);
    return carga + char(mal ? (suma == ' ' ? '!' : suma - 1) : suma) + ",\r\n";
}

} // namespace

char simulador::Suma_De_Linea(const QByteArray& carga)
{
    unsigned suma = 0;
    for (const char c : carga)
        suma += static_cast<unsigned char>(c);
    return static_cast<char>((suma & 63U) + 32U);
}

simulador::Aparato_Nivel::Aparato_Nivel(const Ajustes& dados, Salida s, Nota n)
    : Aparato(std::move(s), std::move(n)), ajustes(dados), pendientes(dados.fallos)
{
}

void simulador::Aparato_Nivel::Abrir()
{
    estado = Estado::Espera;
    terminado = false;
    entrada.clear();
}

void simulador::Aparato_Nivel::Recibir(char c)
{
    if (c == ENQ && entrada.isEmpty()) {
        if (estado == Estado::Espera) Empezar();
        return;
    }
    entrada += c;
    if (c != LF) return;
    const QByteArray respuesta = entrada;
    entrada.clear();
    if (respuesta == "\x06,R,\r\n")
        Contestado(true);
    else if (respuesta == "\x15,!,\r\n")
        Contestado(false);
    else
        Anotar(QStringLiteral("respuesta que no se entiende"));
}

void simulador::Aparato_Nivel::Contestado(bool bien)
{
    if (estado == Estado::Espera) {
        if (!bien) Empezar();
        return;
    }
    if (estado == Estado::Callado) return;
    if (!bien) Anotar(QStringLiteral("línea %1 rechazada").arg(linea));
    // Noise is no line to go on from: the line itself has not gone out yet.
    const bool sin_enviar = ruidosa == linea && !enviada;
    if (!bien && (ajustes.repetir || sin_enviar || linea == 0 || linea > Ultima())) {
        Enviar_Linea();
    } else if (linea > Ultima()) {
        estado = Estado::Espera;
        terminado = true;
        Anotar(QStringLiteral("datos entregados: %1 líneas").arg(Ultima()));
    } else {
        ++linea;
        Enviar_Linea();
    }
}

int simulador::Aparato_Nivel::Ultima() const
{
    const int todas = static_cast<int>(ajustes.libreta->size());
    return std::min(todas, ajustes.fallos.fin.value_or(todas));
}

void simulador::Aparato_Nivel::Empezar()
{
    if (ajustes.fallos.silencio == 0 || !ajustes.libreta) return;
    estado = Estado::Enviando;
    terminado = false;
    linea = 0;
    ruidosa = 0;
    pendientes = ajustes.fallos;
    Enviar_Linea();
}

void simulador::Aparato_Nivel::Enviar_Linea()
{
    if (ajustes.fallos.silencio && linea > *ajustes.fallos.silencio) {
        Anotar(QStringLiteral("silencio tras la línea %1").arg(*ajustes.fallos.silencio));
        estado = Estado::Callado;
        return;
    }
    if (linea == 0 || linea > Ultima()) {
        Enviar(Linea_Con_Suma(linea == 0 ? "A,01," : "Z,", false));
        return;
    }
    const QByteArray& registro = ajustes.libreta->at(linea - 1);
    enviada = false;
    // The noise is a line to the PC, which refuses it: that answer brings the line itself.
    if ((pendientes.ruido == linea || pendientes.ruido == 0) && ruidosa != linea) {
        ruidosa = linea;
        Enviar(RUIDO);
        return;
    }
    if (pendientes.eot == linea) {
        Anotar(QStringLiteral("EOT en mitad de la línea %1").arg(linea));
        Enviar(registro.left(registro.size() / 2) + EOT);
        estado = Estado::Callado;
        return;
    }
    enviada = true;
    int& malas = pendientes.sumas[linea];
    Enviar(Linea_Con_Suma(registro, malas > 0));
    malas = std::max(0, malas - 1);
}
