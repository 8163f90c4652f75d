#include "transfer/krt300/Receptor_KRT300.h"

#include "core/Ansi.h"
#include "core/Sumas.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype LARGO_SUMA = 3;
constexpr qsizetype LARGO_COLA = 1 + LARGO_SUMA; // sequence digit and checksum
constexpr int CIFRAS = 10;

bool Trama_Buena(QStringView trama)
{
    return trama.size() >= LARGO_COLA &&
           Suma_XOR(trama.chopped(LARGO_SUMA)) == trama.last(LARGO_SUMA);
}

bool Es_La_Misma(QStringView mala, QStringView otra)
{
    const qsizetype suma = std::min(LARGO_SUMA, mala.size()),
                    suma_otra = std::min(LARGO_SUMA, otra.size());
    return Es_Repeticion(mala.chopped(suma), mala.last(suma), otra.chopped(suma_otra),
                         otra.last(suma_otra));
}

} // namespace

Respuesta_Recepcion Receptor_KRT300::Recibir(char caracter)
{
    if (caracter == Control::EOT) {
        acabada = true;
        return {QByteArray(1, Control::ACK), true};
    }
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
    if (!Trama_Buena(interior)) {
        Anotar_Rechazada(interior);
        return {QByteArray(1, Control::SI)};
    }
    Repasar_Rechazadas(interior);
    buffer += QStringView(interior).chopped(LARGO_COLA);
    return {QByteArray(1, Control::ACK)};
}

// A frame that comes bad several times is one frame.
void Receptor_KRT300::Anotar_Rechazada(const QString& mala)
{
    if (!rechazadas.isEmpty() && Es_La_Misma(rechazadas.constLast(), mala)) return;
    rechazadas << mala;
}

void Receptor_KRT300::Repasar_Rechazadas(const QString& buena)
{
    const int cifra = buena[buena.size() - LARGO_COLA].digitValue();
    const bool primera = buenas++ == 0;
    const int debida = primera ? 0 : (ultima_cifra + 1) % CIFRAS;
    const int irreconocibles =
        int(std::ranges::count_if(std::exchange(rechazadas, {}),
                                  [&](const QString& mala) { return !Es_La_Misma(mala, buena); }));
    const int salto = cifra < 0 ? CIFRAS : (cifra - debida + CIFRAS) % CIFRAS;
    if (buenas == 2 && salto == 0) en_duda = 0;
    if (primera && salto == 0)
        en_duda = irreconocibles;
    else
        perdidas += std::min(irreconocibles, salto);
    ultima_cifra = std::max(cifra, 0);
}

Faltas_Recepcion Receptor_KRT300::Faltas() const
{
    Faltas_Recepcion faltas;
    faltas.rechazadas = perdidas + en_duda + int(rechazadas.size());
    faltas.abiertas = en_trama ? 1 : 0;
    faltas.sin_acabar = !acabada;
    return faltas;
}
