#include "transfer/nv400/Receptor_NV400.h"

#include "core/Ansi.h"
#include "core/Sumas.h"

#include <utility>

Clase_Linea Clasificar_Linea(const QString& linea)
{
    constexpr qsizetype COLA = 4; // checksum, comma, CR, LF
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
    if (clase == Clase_Linea::Mala) return {LINEA_NAK};
    if (clase == Clase_Linea::Datos) acumulado += entera;
    if (clase == Clase_Linea::Fin) buffer = acumulado;
    return {LINEA_ACK, clase == Clase_Linea::Fin};
}
