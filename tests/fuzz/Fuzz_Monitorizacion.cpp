#include "conversions/puntos/Monitorizacion.h"
#include "tests/fuzz/Busqueda.h"

#include <cstring>

using namespace Monitorizacion;

// The bytes are the readings up to the first "@" and the coordinates behind it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    const auto* corte =
        static_cast<const uint8_t*>(largo ? std::memchr(datos, '@', largo) : nullptr);
    const std::size_t de_lecturas = corte ? std::size_t(corte - datos) : largo;
    Referencias referencias = {{"E", {100, 200, 50}}, {"P", {100, 210, 51}}};
    if (corte)
        Buscar_En_Texto(corte + 1, largo - de_lecturas - 1,
                        [&](Texto_Fuente& fuente, Informe_Lectura& i) {
                            referencias = Leer_Coordenadas(fuente, i);
                            return QByteArray();
                        });
    Buscar_En_Texto(datos, de_lecturas, [](Texto_Fuente& fuente, Informe_Lectura&) {
        const QByteArray salida = Escribir_Cabecera(Leer_Cabecera(fuente));
        if (salida.count("\r\n") != 3) std::abort();
        return salida;
    });
    return Buscar_En_Texto(datos, de_lecturas, [&](Texto_Fuente& fuente, Informe_Lectura& informe) {
        const Medidas medidas = Leer_Lecturas(fuente, referencias, informe);
        const QByteArray salida = Escribir_Resultados(medidas, referencias, {});
        if (salida.count('\n') != 9 + qsizetype(medidas.size()) || salida.contains("nan"))
            std::abort();
        return salida;
    });
}
