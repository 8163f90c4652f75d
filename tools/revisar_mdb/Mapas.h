#pragma once

#include "tools/revisar_mdb/Revision.h"

namespace Revision_Mdb {

/// A usage map as it was read.
struct Mapa {
    quint32 pagina = 0;  ///< on which it stands
    quint32 inicio = 0;  ///< first page that it speaks of
    quint32 alcance = 0; ///< and the one behind the last
    bool en_linea = true;
    QList<quint32> paginas; ///< marked, in ascending order
    QList<quint32> bitmaps; ///< pages that it is kept on besides
};

/// Reads the map in a row and claims its bitmap pages.
/// @throws Rotura when it isn't one
Mapa Leer_Mapa(Revision& revision, Puntero puntero);

/// After a straight fill only the last page of a table has room.
void Revisar_Libres(Revision& revision, const Mapa& propias, const Mapa& libres);

/// Page 1: every page of the file is in use, and what lies behind its end is free.
void Revisar_Mapa_Global(Revision& revision);

/// Every row of the map page `pagina` must be one of `punteros`, each used once.
void Revisar_Pagina_De_Mapas(Revision& revision, quint32 pagina, const QList<quint32>& punteros);

} // namespace Revision_Mdb
