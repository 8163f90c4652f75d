#include "conversions/puntos/Bronex_COD.h"
#include "tests/fuzz/Busqueda.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    return Buscar_En_Texto(datos, largo, [](Texto_Fuente& fuente, Informe_Lectura& informe) {
        const Observaciones_Bronex observaciones = Leer_Bronex(fuente, informe);
        for (const QStringList& fila : observaciones.filas)
            if (fila.size() != 8) std::abort();
        return Escribir_Bronex(observaciones, {});
    });
}
