#include "core/Familia.h"

#include "core/ModEstTotal.h"

#include <algorithm>

namespace {

// ENQ asks a station for its data; the level is asked for a line again by its NAK line.
const QByteArray ENQ = QByteArrayLiteral("\x05");
const QByteArray REPITA_NIVEL = QByteArrayLiteral("\x15,!,\r\n");

const Familia FAMILIAS[] = {
    {.clave = QStringLiteral("KRT300"),
     .serie = Serie::A,
     .separador_registro = QStringLiteral("_"),
     .desplazamiento_fijo = true,
     .ofrece_punto = true,
     .hd6_propio = true,
     .arranque = ENQ,
     .sondeo = ENQ,
     .carga = Carga::Tramas,
     .prefijo_traza = QStringLiteral("KRT300"),
     .librerias = Serie::A},
    {.clave = QStringLiteral("KRT800"),
     .serie = Serie::B,
     .separador_registro = QStringLiteral("\r\n"),
     .arranque = {},
     .sondeo = {},
     .carga = Carga::Caracteres,
     .prefijo_traza = QStringLiteral("KRT800"),
     .librerias = Serie::B},
    {.clave = QStringLiteral("NV400"),
     .serie = Serie::Nivel,
     .separador_registro = QStringLiteral("\r\n"),
     .pide_nombre = false,
     .arranque = ENQ,
     .sondeo = REPITA_NIVEL,
     .carga = Carga::Fichero,
     .prefijo_traza = {}},
    {.clave = QStringLiteral("PX7"),
     .serie = Serie::A,
     .separador_registro = QStringLiteral("_"),
     .ofrece_punto = true,
     .arranque = ENQ,
     .sondeo = ENQ,
     .carga = Carga::Tramas,
     .prefijo_traza = QStringLiteral("KRT300"),
     .librerias = Serie::A},
};

const Familia OTRA;

const Fila_Operacion OPERACIONES[] = {
    {Operacion::Medicion, true, {}},
    {Operacion::Coordenadas, true, {}},
    {Operacion::Libreria, false, {}},
    {Operacion::Reservada, true, {}},
    {Operacion::Puntos, true, QStringLiteral("Punto")},
    {Operacion::Trabajo, false, {}},
    {Operacion::Alineaciones, true, {}},
    {Operacion::Perfiles, true, QStringLiteral("Per.Trans")},
    {Operacion::Rasantes, false, {}},
    {Operacion::Replanteo, false, {}},
    {Operacion::Perfiles_Proyecto, false, {}},
    {Operacion::Calculadas, true, {}},
};

const Fila_Operacion DESCONOCIDA{Operacion(-1), false, {}};

} // namespace

std::span<const Familia> Familias()
{
    return FAMILIAS;
}

const Familia& Familia_De(QStringView clave)
{
    const auto fila = std::ranges::find(FAMILIAS, clave, &Familia::clave);
    return fila == std::end(FAMILIAS) ? OTRA : *fila;
}

const Familia& Familia_Actual()
{
    return Familia_De(Clave_Estacion);
}

QStringList Claves_Familias()
{
    QStringList claves;
    for (const Familia& familia : FAMILIAS)
        claves << familia.clave;
    return claves;
}

const Fila_Operacion& Fila_De(Operacion operacion)
{
    const auto fila = std::ranges::find(OPERACIONES, operacion, &Fila_Operacion::operacion);
    return fila == std::end(OPERACIONES) ? DESCONOCIDA : *fila;
}

int Operacion_En_El_Enlace(const Familia& familia, int operacion)
{
    const bool calculadas = Operacion(operacion) == Operacion::Calculadas;
    return familia.serie == Serie::A && calculadas ? int(Operacion::Coordenadas) : operacion;
}
