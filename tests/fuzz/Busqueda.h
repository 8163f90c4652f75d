#pragma once

#include "conversions/suelo/Informe_Lectura.h"
#include "conversions/suelo/Texto_Fuente.h"

#include <cstdint>
#include <cstdlib>
#include <QBuffer>

/// What the harnesses of the converters share: any bytes give a model or a target, or a refusal
/// with its reason; nothing else may come out.
/// @param leer  given the opened bytes and a report
template <class Leer> int Buscar_En_Bytes(const uint8_t* datos, std::size_t largo, Leer leer)
{
    QByteArray bytes(reinterpret_cast<const char*>(datos), qsizetype(largo));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    Informe_Lectura informe;
    try {
        leer(buffer, informe);
    } catch (const Fallo_Conversion& f) {
        if (f.motivo.isEmpty()) std::abort();
    }
    return 0;
}

/// The same for a text source. @param convertir  gives the target's bytes, whole lines
template <class Convertir>
int Buscar_En_Texto(const uint8_t* datos, std::size_t largo, Convertir convertir)
{
    return Buscar_En_Bytes(datos, largo, [&](QIODevice& dispositivo, Informe_Lectura& informe) {
        Texto_Fuente fuente(dispositivo);
        const QByteArray salida = convertir(fuente, informe);
        if (!salida.isEmpty() && !salida.endsWith("\r\n")) std::abort();
    });
}
