#include "tools/revisar_mdb/Revisor.h"

#include "tools/revisar_mdb/Catalogo.h"
#include "tools/revisar_mdb/Filas.h"
#include "tools/revisar_mdb/Mapas.h"

#include <set>

namespace Revision_Mdb {

namespace {

constexpr quint32 PAGINAS_MINIMAS = 16;

// Pages that the maps of all tables stand on, each row with one user.
void Revisar_Mapas(Revision& r, const Catalogo& catalogo)
{
    QList<quint32> punteros;
    for (const QList<Definicion>& tablas : {catalogo.sistema, catalogo.tablas})
        for (const Definicion& d : tablas) {
            punteros << d.propias << d.libres;
            for (const Indice& i : d.indices)
                punteros << i.mapa;
            for (const Columna_Larga& l : d.largas)
                punteros << l.propias << l.libres;
        }
    std::set<quint32> paginas;
    for (const quint32 p : punteros)
        paginas.insert(Puntero(p).pagina);
    for (const quint32 p : paginas)
        r.Paso_Sobre(p, [&] { Revisar_Pagina_De_Mapas(r, p, punteros); });
}

void Revisar_Fichero(Revision& r)
{
    const Cabecera cabecera = Revisar_Cabecera(r);
    const Catalogo catalogo = Revisar_Catalogo(r, cabecera);
    for (const Definicion& tabla : catalogo.tablas)
        r.Paso_Sobre(tabla.pagina,
                     [&] { Revisar_Filas(r, tabla, [](const Registro&, quint32, quint32) {}); });
    Revisar_Mapas(r, catalogo);
    r.Paso_Sobre(1, [&] { Revisar_Mapa_Global(r); });
    r.Revisar_Duenos();
}

} // namespace
} // namespace Revision_Mdb

QStringList Revisar_Mdb(QByteArrayView fichero)
{
    Revision_Mdb::Revision revision(fichero);
    revision.Paso_Sobre(0, [&] {
        if (revision.Paginas() < Revision_Mdb::PAGINAS_MINIMAS)
            throw Revision_Mdb::Rotura{"el fichero es más corto que una base vacía"};
        Revision_Mdb::Revisar_Fichero(revision);
    });
    return revision.Quejas();
}
