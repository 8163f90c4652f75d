#include "export/mdb/Pagina_Datos.h"

#include <algorithm>
#include <cstring>

namespace Jet {

namespace {
enum Cabecera_Datos { DAT_SELLO = 0x08, DAT_FILAS = 0x0C, DAT_RANURAS = 0x0E };
constexpr int RANURA = 2;
} // namespace

Pagina_Datos::Pagina_Datos(quint32 dueno) : pagina(Pagina_Nueva(Clase_Pagina::DATOS))
{
    static_assert(FILA_MAXIMA == TAMANO_PAGINA - DAT_RANURAS - RANURA);
    Poner<quint32>(pagina, PAG_DUENO, dueno);
}

int Pagina_Datos::Libre() const
{
    return fondo - DAT_RANURAS - RANURA * filas;
}

std::optional<quint32> Pagina_Datos::Anadir(QByteArrayView fila)
{
    if (!Cabe(fila.size())) return std::nullopt;
    fondo -= static_cast<int>(fila.size());
    std::memcpy(pagina.data() + fondo, fila.data(), static_cast<std::size_t>(fila.size()));
    Poner<quint16>(pagina, DAT_RANURAS + RANURA * filas, static_cast<quint16>(fondo));
    return static_cast<quint32>(filas++);
}

void Pagina_Datos::Sellar(quint32 sello)
{
    Poner<quint32>(pagina, DAT_SELLO, sello);
}

const Pagina& Pagina_Datos::Acabada()
{
    Poner<quint16>(pagina, PAG_LIBRE, static_cast<quint16>(Libre()));
    Poner<quint16>(pagina, DAT_FILAS, static_cast<quint16>(filas));
    return pagina;
}

void Pagina_Datos::Vaciar()
{
    std::fill(pagina.begin() + DAT_SELLO, pagina.end(), uchar(0));
    filas = 0;
    fondo = TAMANO_PAGINA;
}

} // namespace Jet
