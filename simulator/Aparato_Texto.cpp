#include "simulator/Aparato_Texto.h"

namespace {
const QByteArray RUIDO("\x7f~?\x01", 4);
}

simulador::Aparato_Texto::Aparato_Texto(const Ajustes& dados, Salida s, Nota n)
    : Aparato(std::move(s), std::move(n)), ajustes(dados)
{
}

void simulador::Aparato_Texto::Abrir()
{
    estado = Estado::Abierto;
    terminado = false;
    esperado = 0;
    recibido.clear();
}

void simulador::Aparato_Texto::Pasar(int ms)
{
    if (estado != Estado::Abierto || !ajustes.libreta) return;
    esperado += ms;
    if (esperado >= ajustes.retardo) Enviar_Libreta();
}

void simulador::Aparato_Texto::Enviar_Libreta()
{
    const Fallos& f = ajustes.fallos;
    estado = Estado::Enviado;
    int n = 0;
    for (const QByteArray& r : *ajustes.libreta) {
        if (f.silencio && n >= *f.silencio) {
            Anotar(QStringLiteral("silencio tras la línea %1").arg(n));
            return;
        }
        if (f.fin && n >= *f.fin) break;
        ++n;
        if (f.ruido == n || f.ruido == 0) Enviar(RUIDO);
        if (f.eot == n) {
            Anotar(QStringLiteral("EOT en mitad de la línea %1").arg(n));
            Enviar(r.left(r.size() / 2));
            break;
        }
        Enviar(r + "\r\n");
    }
    Enviar(QByteArray(1, EOT));
    terminado = true;
    Anotar(QStringLiteral("datos entregados: %1 líneas").arg(n));
}

void simulador::Aparato_Texto::Recibir(char c)
{
    // What the PC sends while the book goes out is nothing the instrument listens to.
    if (estado == Estado::Enviado) return;
    estado = Estado::Recibiendo;
    if (c == EOT) {
        terminado = true;
        Anotar(QStringLiteral("carga recibida: %1 caracteres").arg(recibido.size()));
        return;
    }
    if (terminado) recibido.clear();
    terminado = false;
    recibido += c;
}

QList<QByteArray> simulador::Aparato_Texto::Registros_Recibidos() const
{
    QList<QByteArray> lineas = recibido.split(LF);
    if (lineas.last().isEmpty()) lineas.removeLast();
    for (QByteArray& l : lineas)
        if (l.endsWith(CR)) l.chop(1);
    return lineas;
}
