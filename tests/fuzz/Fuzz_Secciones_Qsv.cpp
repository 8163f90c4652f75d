#include "conversions/Escritor_Secciones.h"
#include "conversions/Lectores_Secciones.h"
#include "tests/fuzz/Busqueda.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    return Buscar_En_Texto(datos, largo, [](Texto_Fuente& fuente, Informe_Lectura& informe) {
        const QByteArray salida =
            Escritor_Secciones::Ssp(Lectores_Secciones::Qsv(fuente, informe), {});
        // Three numbers a line, and no section without points.
        const auto lineas = salida.count('\n');
        if (lineas == 0 || salida.count(',') != 2 * lineas || salida.contains('n')) std::abort();
        return salida;
    });
}
