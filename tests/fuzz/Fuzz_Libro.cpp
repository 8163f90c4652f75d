// Any bytes are a workbook or a refusal with its reason; what was read can be written again.

#include "core/Error_Ejecucion.h"
#include "export/excel/Archivo_Ole.h"
#include "export/excel/Escritor_Biff.h"
#include "export/excel/Lector_Biff.h"

#include <cstdlib>

namespace {

void Leer_Y_Escribir(QByteArrayView bytes)
{
    try {
        const Libro_Excel libro = Leer_Libro(bytes, QStringLiteral("hoja1"));
        Escribir_Libro(libro, Version_Excel::Excel_8);
    } catch (const Error_Ejecucion& e) {
        if (e.descripcion.isEmpty()) std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    const QByteArrayView bytes(reinterpret_cast<const char*>(datos), qsizetype(largo));
    Leer_Y_Escribir(bytes);
    // A stream in a sound compound file comes further than one whose sectors are random.
    if (!Lector_Ole::Es_Ole(bytes))
        Leer_Y_Escribir(Escribir_Ole(QStringLiteral("Workbook"), bytes, Clase_Ole{}));
    return 0;
}
