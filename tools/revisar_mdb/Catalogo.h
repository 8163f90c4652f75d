#pragma once

#include "tools/revisar_mdb/Cabecera.h"
#include "tools/revisar_mdb/Definicion.h"

namespace Revision_Mdb {

/// Examines the four system tables: their definitions, rows, indexes, rights and the properties
/// that they hold.
/// @return the definitions of the user's tables, those of the system behind them
struct Catalogo {
    QList<Definicion> tablas;
    QList<Definicion> sistema;
};
Catalogo Revisar_Catalogo(Revision& revision, const Cabecera& cabecera);

} // namespace Revision_Mdb
