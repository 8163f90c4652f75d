#include "tests/fuzz/Busqueda_Secciones.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    return Buscar_En_Secciones<Lectores_Secciones::Clip_Bloques>(datos, largo);
}
