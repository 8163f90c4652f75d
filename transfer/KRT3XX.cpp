#include "transfer/KRT3XX.h"

#include "core/Ansi.h"
#include "core/Trozos.h"

namespace {

constexpr qsizetype LARGO_SUMA = 3;
constexpr qsizetype LARGO_COLA = 1 + LARGO_SUMA; // sequence digit and checksum

bool Trama_Buena(const QString& trama)
{
    return trama.size() >= LARGO_COLA &&
           Suma_XOR(trama.left(trama.size() - LARGO_SUMA)) == trama.right(LARGO_SUMA);
}

} // namespace

void Recibir_KRT300(char caracter, const Salida_Recepcion& comm)
{
    if (caracter == Control::EOT) {
        comm.Enviar(QByteArray(1, Control::ACK));
        comm.Saltar_a_Sesiones();
        return;
    }
    if (!Recepcion.EnTrama) {
        if (caracter == Control::STX) {
            Recepcion.Trama.clear();
            Recepcion.EnTrama = true;
        }
        return;
    }
    if (caracter != Control::ETX) {
        Recepcion.Trama += Ansi::Caracter(static_cast<unsigned char>(caracter));
        return;
    }
    Recepcion.EnTrama = false;
    const QString trama = std::exchange(Recepcion.Trama, QString());
    if (Trama_Buena(trama)) {
        Recepcion.Buffer += QStringView(trama).chopped(LARGO_COLA);
        comm.Enviar(QByteArray(1, Control::ACK));
    } else {
        comm.Enviar(QByteArray(1, Control::SI));
    }
}
