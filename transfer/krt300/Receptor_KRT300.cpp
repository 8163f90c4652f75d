#include "transfer/krt300/Receptor_KRT300.h"

#include "core/Ansi.h"
#include "core/Sumas.h"

#include <utility>

namespace {

constexpr qsizetype LARGO_SUMA = 3;
constexpr qsizetype LARGO_COLA = 1 + LARGO_SUMA; // sequence digit and checksum

bool Trama_Buena(QStringView trama)
{
    return trama.size() >= LARGO_COLA &&
           Suma_XOR(trama.chopped(LARGO_SUMA)) == trama.last(LARGO_SUMA);
}

} // namespace

Respuesta_Recepcion Receptor_KRT300::Recibir(char caracter)
{
    if (caracter == Control::EOT) return {QByteArray(1, Control::ACK), true};
    if (!en_trama) {
        en_trama = caracter == Control::STX;
        return {};
    }
    if (caracter == Control::ETX) return Cerrar_Trama();
    trama += Ansi::Caracter(static_cast<unsigned char>(caracter));
    return {};
}

Respuesta_Recepcion Receptor_KRT300::Cerrar_Trama()
{
    en_trama = false;
    const QString interior = std::exchange(trama, QString());
    if (!Trama_Buena(interior)) return {QByteArray(1, Control::SI)};
    buffer += QStringView(interior).chopped(LARGO_COLA);
    return {QByteArray(1, Control::ACK)};
}

QString Receptor_KRT300::Rescatable() const
{
    return buffer.left(qMax<qsizetype>(buffer.lastIndexOf(u'_'), 0));
}
