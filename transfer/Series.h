#pragma once

#include "core/Familia.h"
#include "transfer/enlace/Emisor.h"
#include "transfer/enlace/Recepcion.h"
#include "transfer/enlace/Receptor.h"

#include <memory>
#include <optional>

/// What the families of one series bring to the line. A new series is its room and a row here.
struct Serie_En_Linea {
    Serie serie;
    /// Makes the receiver of one reception.
    std::unique_ptr<Receptor> (*receptor)();
    /// Stores a finished reception. Null when the series stores nothing of that operation: the
    /// database is then left alone altogether.
    std::optional<Resultado_Recepcion> (*guardar)(const Datos_Recepcion& datos);
    /// Makes the sender of one upload. Null for a series whose uploads don't go over the port.
    std::unique_ptr<Emisor> (*emisor)(const Datos_Envio& datos);
};

/// @return the row of the family; null for a key that no family has, whose bytes nobody hears
const Serie_En_Linea* Serie_De(const Familia& familia);
