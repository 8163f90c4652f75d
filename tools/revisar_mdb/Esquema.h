#pragma once

#include "tools/revisar_mdb/Definicion.h"

namespace Revision_Mdb {

/// Compares the definition of a system table with the one that every database has.
void Revisar_Esquema(Revision& revision, const Definicion& tabla);

} // namespace Revision_Mdb
