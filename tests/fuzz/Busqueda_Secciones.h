#pragma once

#include "conversions/Informe_Lectura.h"
#include "conversions/Texto_Fuente.h"

#include <cstdint>
#include <cstdlib>
#include <QBuffer>

/// What the harnesses of sections, points and forms share: any bytes give a target, or a refusal
/// with its reason; nothing else may come out.
template <class Convertir>
int Buscar_En_Texto(const uint8_t* datos, std::size_t largo, Convertir convertir)
{
    QByteArray bytes(reinterpret_cast<const char*>(datos), qsizetype(largo));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    Texto_Fuente fuente(buffer);
    Informe_Lectura informe;
    try {
        const QByteArray salida = convertir(fuente, informe);
        if (!salida.isEmpty() && !salida.endsWith("\r\n")) std::abort();
    } catch (const Fallo_Conversion& f) {
        if (f.motivo.isEmpty()) std::abort();
    }
    return 0;
}
