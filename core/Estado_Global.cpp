#include "core/Estado_Global.h"

#include <utility>

static std::vector<Estado_Global::Pieza>& Lista()
{
    static std::vector<Estado_Global::Pieza> lista;
    return lista;
}

const std::vector<Estado_Global::Pieza>& Estado_Global::Piezas()
{
    return Lista();
}

void Estado_Global::Anotar(Pieza pieza)
{
    Lista().push_back(std::move(pieza));
}
