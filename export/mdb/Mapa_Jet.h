#pragma once

#include "export/mdb/Paginas_Jet.h"

#include <QList>

namespace Jet {

/// Pages `desde` to `hasta`, both included.
struct Tramo {
    quint32 desde;
    quint32 hasta;
};

/// A usage map: the pages of a table, an index or a long-value column, or those of them with room
/// for more. It is stored as a row, either with its bitmap inside ("inline", kept as short as
/// the engine makes it) or, when it would grow too long, with the numbers of whole bitmap pages.
struct Mapa {
    enum Forma {
        DESDE_CERO, ///< the bitmap begins at page 0 and grows with the highest page
        VENTANA     ///< a bitmap of the shortest length that begins near its first page
    };
    QList<Tramo> paginas; ///< in ascending order
    Forma forma = DESDE_CERO;

    void Marcar(quint32 pagina);
};

/// The page that holds `mapas`, row after row. Maps that make it overflow, the longest first,
/// take the form with bitmap pages, which are reserved and written here.
/// @throws Error_Ejecucion as `Paginas`
Pagina Pagina_De_Mapas(const QList<Mapa>& mapas, Paginas& paginas);

/// The global map, which marks the pages that are free: none inside the file, and those behind
/// its end as far as the map reaches. Must be the last to reserve pages.
/// @return page 1, not yet written
/// @throws Error_Ejecucion as `Paginas`
Pagina Pagina_Mapa_Global(Paginas& paginas);

} // namespace Jet
