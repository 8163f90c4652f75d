#pragma once

#include "tools/revisar_mdb/Definicion.h"

#include <functional>
#include <optional>

namespace Revision_Mdb {

/// Owners that data pages of no table name.
constexpr quint32 DE_MAPAS = 0;
constexpr quint32 DE_GLOBAL = 1;
constexpr quint32 DE_LARGOS = 0x4C41564C; // "LVAL"

/// The rows of a data page: its head, its table of rows and its unused bytes are examined.
/// @param sello  stamp that only the first page of a chained value bears
QList<Bytes> Filas_De_Pagina(Revision& revision, quint32 pagina, quint32 dueno, quint32 sello = 0);

/// A row of a map or long-value page. @throws Rotura when there is none of that number
Bytes Fila_En(const Revision& revision, Puntero puntero);

/// Values of a record, by column id; nothing stands for null.
using Registro = QList<std::optional<Bytes>>;

/// Cuts a record of `tabla` and examines its parts. A boolean is one that has a value or none.
Registro Cortar_Registro(Revision& revision, quint32 pagina, const Definicion& tabla, Bytes fila);

/// All rows of a table, in order, each with its page and row number.
using Cada_Fila = std::function<void(const Registro&, quint32 pagina, quint32 fila)>;
void Revisar_Filas(Revision& revision, const Definicion& tabla, const Cada_Fila& cada);

} // namespace Revision_Mdb
