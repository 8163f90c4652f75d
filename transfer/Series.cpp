#include "transfer/Series.h"

#include "transfer/krt300/Almacen_KRT300.h"
#include "transfer/krt300/Emisor_KRT300.h"
#include "transfer/krt300/Receptor_KRT300.h"
#include "transfer/krt800/Almacen_KRT800.h"
#include "transfer/krt800/Emisor_KRT800.h"
#include "transfer/krt800/Receptor_KRT800.h"
#include "transfer/nv400/Almacen_NV400.h"
#include "transfer/nv400/Receptor_NV400.h"

#include <algorithm>

namespace {

template <class Clase> std::unique_ptr<Receptor> Hacer()
{
    return std::make_unique<Clase>();
}

template <class Clase> std::unique_ptr<Emisor> Hacer_Emisor(const Datos_Envio& datos)
{
    return std::make_unique<Clase>(datos);
}

const Serie_En_Linea SERIES[] = {
    {Serie::A, Hacer<Receptor_KRT300>, Guardar_Descarga_KRT300, QStringLiteral("trama"),
     Hacer_Emisor<Emisor_KRT300>},
    {Serie::B, Hacer<Receptor_KRT800>, Guardar_Descarga_KRT800, QStringLiteral("línea"),
     Hacer_Emisor<Emisor_KRT800>},
    {Serie::Nivel, Hacer<Receptor_NV400>, Guardar_Descarga_NV400, QStringLiteral("línea"), nullptr},
};

} // namespace

const Serie_En_Linea* Serie_De(const Familia& familia)
{
    const auto* const fila = std::ranges::find(SERIES, familia.serie, &Serie_En_Linea::serie);
    return fila == std::end(SERIES) ? nullptr : fila;
}
