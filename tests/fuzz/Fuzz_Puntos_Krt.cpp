#include "conversions/puntos/Escritores_Puntos.h"
#include "conversions/puntos/Lectores_Puntos.h"
#include "tests/fuzz/Busqueda.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    return Buscar_En_Texto(datos, largo, [](Texto_Fuente& fuente, Informe_Lectura& informe) {
        const Puntos puntos = Lectores_Puntos::Blancos(fuente, informe);
        const QByteArray salida = Escritores_Puntos::Krt(puntos, {});
        if (salida.count("\r\n") < qsizetype(puntos.lista.size())) std::abort();
        return salida;
    });
}
