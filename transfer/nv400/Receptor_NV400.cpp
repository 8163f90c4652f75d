#include "transfer/nv400/Receptor_NV400.h"

#include "core/Ansi.h"
#include "core/Sumas.h"

#include <utility>

namespace {

constexpr qsizetype COLA = 4; // checksum, comma, CR, LF

bool Es_La_Misma(QStringView mala, QStringView otra)
{
    return Es_Repeticion(mala.chopped(COLA), mala.last(COLA).first(1), otra.chopped(COLA),
                         otra.last(COLA).first(1));
}

} // namespace

Clase_Linea Clasificar_Linea(const QString& linea)
{
    if (linea.size() <= COLA) return Clase_Linea::Mala;
    if (Suma_Nivel(QStringView(linea).chopped(COLA)) != linea[linea.size() - COLA])
        return Clase_Linea::Mala;
    if (linea == LINEA_INICIO) return Clase_Linea::Inicio;
    return linea == LINEA_FIN ? Clase_Linea::Fin : Clase_Linea::Datos;
}

Respuesta_Recepcion Receptor_NV400::Recibir(char caracter)
{
    const bool abierta = !linea.isEmpty();
    linea += Ansi::Caracter(static_cast<unsigned char>(caracter));
    // An LF that opens a line is its first character and ends nothing.
    return abierta && caracter == Control::LF ? Cerrar_Linea() : Respuesta_Recepcion{};
}

Respuesta_Recepcion Receptor_NV400::Cerrar_Linea()
{
    const QString entera = std::exchange(linea, QString());
    const Clase_Linea clase = Clasificar_Linea(entera);
    if (clase == Clase_Linea::Mala) {
        Anotar_Rechazada(entera);
        return {LINEA_NAK};
    }
    Repasar_Rechazadas(entera);
    if (clase == Clase_Linea::Datos) acumulado += entera;
    acabada = clase == Clase_Linea::Fin;
    if (acabada) buffer = acumulado;
    return {LINEA_ACK, acabada};
}

void Receptor_NV400::Anotar_Rechazada(const QString& mala)
{
    if (mala.size() <= COLA) return;
    if (!rechazadas.isEmpty() && Es_La_Misma(rechazadas.constLast(), mala)) return;
    rechazadas << mala;
}

void Receptor_NV400::Repasar_Rechazadas(const QString& buena)
{
    for (const QString& mala : std::exchange(rechazadas, {}))
        if (!Es_La_Misma(mala, buena)) ++perdidas;
}

Faltas_Recepcion Receptor_NV400::Faltas() const
{
    Faltas_Recepcion faltas;
    faltas.rechazadas = perdidas + int(rechazadas.size());
    faltas.abiertas = linea.isEmpty() ? 0 : 1;
    faltas.sin_acabar = !acabada;
    return faltas;
}
