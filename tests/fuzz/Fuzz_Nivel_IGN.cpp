#include "conversions/puntos/Nivel_IGN.h"
#include "session/Nivel.h"
#include "tests/fuzz/Busqueda.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    const QString linea =
        QString::fromLatin1(reinterpret_cast<const char*>(datos), qsizetype(largo));
    for (int n = -1; n < 25; ++n)
        Campo_NV400(linea, n);
    return Buscar_En_Texto(datos, largo, [](Texto_Fuente& fuente, Informe_Lectura& informe) {
        return Nivel_IGN::Escribir(Nivel_IGN::Leer(fuente, informe), {"S", "M1", "M2", "O", "E"});
    });
}
