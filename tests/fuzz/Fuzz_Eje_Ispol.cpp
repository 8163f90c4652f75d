#include "tests/fuzz/Busqueda_Lector.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    return Busqueda_Lector::Texto<Leer_Eje_Ispol>(datos, largo);
}
