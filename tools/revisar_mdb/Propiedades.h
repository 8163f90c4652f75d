#pragma once

#include "tools/revisar_mdb/Definicion.h"
#include "tools/revisar_mdb/Mapas.h"

#include <map>

namespace Revision_Mdb {

/// A property value that a row of MSysObjects points at.
struct Propiedades_De {
    const Definicion* tabla;
    Bytes valor; ///< what the record holds
};

/// Examines the property values: where they stand, which pages they take (those of `propias`,
/// `libres` with room) and that they speak of the columns of their tables.
void Revisar_Propiedades(Revision& revision, const QList<Propiedades_De>& valores,
                         const Mapa& propias, const Mapa& libres);

} // namespace Revision_Mdb
