#include "conversions/puntos/Escritores_Puntos.h"
#include "conversions/puntos/Lectores_Puntos.h"
#include "core/Ansi.h"
#include "core/Sumas.h"
#include "tests/fuzz/Busqueda.h"

// Every line that is made for the level carries the sum that the level will check.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    return Buscar_En_Texto(datos, largo, [](Texto_Fuente& fuente, Informe_Lectura& informe) {
        const QByteArray salida = Escritores_Puntos::X(Lectores_Puntos::Nivel(fuente, informe), {});
        for (const QByteArray& linea : salida.chopped(2).split('\n')) {
            const QString texto = Ansi::A_Texto(linea.endsWith('\r') ? linea.chopped(1) : linea);
            if (texto.size() < 4 || !texto.endsWith(u',')) std::abort();
            if (Suma_Nivel(QStringView(texto).chopped(2)) != texto[texto.size() - 2]) std::abort();
        }
        return salida;
    });
}
