#pragma once

#include "conversions/instrumento/Escritor_Secciones.h"
#include "conversions/secciones/Lectores_Secciones.h"
#include "tests/fuzz/Busqueda.h"

/// `Buscar_En_Texto` for a reader of sections: three numbers a line, and no section without points.
template <auto LEER> int Buscar_En_Secciones(const uint8_t* datos, std::size_t largo)
{
    return Buscar_En_Texto(datos, largo, [](Texto_Fuente& fuente, Informe_Lectura& informe) {
        const QByteArray salida = Escritor_Secciones::Ssp(LEER(fuente, informe), {});
        const auto lineas = salida.count('\n');
        if (lineas == 0 || salida.count(',') != 2 * lineas || salida.contains('n')) std::abort();
        return salida;
    });
}
