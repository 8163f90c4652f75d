#pragma once

#include "tools/revisar_mdb/Filas.h"

namespace Revision_Mdb {

/// A row that an index must hold.
struct Fila_Indexada {
    Registro registro;
    quint32 pagina;
    quint32 fila;
};

/// Examines the leaf of each index of `tabla`: its entries are those of `filas`, in the order of
/// their bytes. Keys are made anew; of a name with characters other than letters, digits, blank
/// and "_" only the frame is compared.
void Revisar_Indices_De(Revision& revision, const Definicion& tabla,
                        const QList<Fila_Indexada>& filas);

} // namespace Revision_Mdb
