#include "tools/revisar_mdb/Mapas.h"

#include "tools/revisar_mdb/Filas.h"

#include <algorithm>

namespace Revision_Mdb {

namespace {

constexpr qsizetype FILA_CORTA = 69;
constexpr qsizetype CABECERA_EN_LINEA = 5;
constexpr int REFERENCIAS = 17;
constexpr qsizetype CABECERA_BITMAP = 4;
constexpr quint32 PAGINAS_POR_BITMAP = 8 * (PAGINA - CABECERA_BITMAP);
constexpr quint32 VENTANA = 512;

void Leer_Bits(Bytes bits, quint32 inicio, Mapa& mapa)
{
    for (qsizetype byte = 0; byte < bits.Largo(); ++byte)
        for (quint32 bit = 0; bit < 8; ++bit)
            if ((bits.U8(byte) >> bit & 1) != 0) mapa.paginas << inicio + 8 * quint32(byte) + bit;
}

void Leer_En_Linea(Revision& r, Bytes fila, Mapa& mapa)
{
    const Bytes bits = fila.Desde(CABECERA_EN_LINEA);
    mapa.inicio = fila.U32(1);
    mapa.alcance = mapa.inicio + 8 * quint32(bits.Largo());
    Leer_Bits(bits, mapa.inicio, mapa);
    r.Exigir(!mapa.paginas.isEmpty() || mapa.inicio == 0, mapa.pagina, "comienzo de un mapa vacío");
    r.Exigir(fila.Largo() >= FILA_CORTA && bits.Largo() % 4 == 0, mapa.pagina, "largo de un mapa");
}

void Leer_Por_Referencia(Revision& r, Bytes fila, Mapa& mapa)
{
    mapa.en_linea = false;
    r.Igual(quint64(fila.Largo()), FILA_CORTA, mapa.pagina, "largo de un mapa por referencia");
    for (quint32 k = 0; k < REFERENCIAS; ++k) {
        const quint32 pagina = fila.U32(1 + 4 * k);
        if (pagina == 0) continue;
        r.Reclamar(pagina, "un mapa");
        const Bytes b = r.Pagina(pagina);
        r.Igual(b.U32(0), 0x0100 | BITMAP, pagina, "cabecera de un mapa");
        Leer_Bits(b.Desde(CABECERA_BITMAP), k * PAGINAS_POR_BITMAP, mapa);
        mapa.bitmaps << pagina;
        mapa.alcance = (k + 1) * PAGINAS_POR_BITMAP;
    }
    r.Exigir(!mapa.bitmaps.isEmpty(), mapa.pagina, "mapa por referencia sin páginas");
}

} // namespace

Mapa Leer_Mapa(Revision& r, Puntero puntero)
{
    Mapa mapa;
    mapa.pagina = puntero.pagina;
    const Bytes fila = Fila_En(r, puntero);
    switch (fila.U8(0)) {
    case 0:
        Leer_En_Linea(r, fila, mapa);
        break;
    case 1:
        Leer_Por_Referencia(r, fila, mapa);
        break;
    default:
        throw Rotura{"mapa de una forma que no hay"};
    }
    return mapa;
}

void Revisar_Libres(Revision& r, const Mapa& propias, const Mapa& libres)
{
    const quint32 pagina = libres.pagina;
    r.Exigir(libres.en_linea, pagina, "mapa de páginas con sitio por referencia");
    r.Igual(propias.inicio, 0, propias.pagina, "comienzo de un mapa");
    if (propias.paginas.isEmpty()) {
        r.Exigir(libres.paginas.isEmpty(), pagina, "página con sitio en una tabla sin páginas");
        r.Igual(libres.inicio, 0, pagina, "comienzo de un mapa");
        return;
    }
    const quint32 ultima = propias.paginas.last();
    r.Exigir(libres.paginas == QList<quint32>{ultima}, pagina,
             "la página con sitio no es la última de las suyas");
    r.Igual(libres.inicio, ultima / VENTANA * VENTANA, pagina, "comienzo de un mapa");
}

void Revisar_Mapa_Global(Revision& r)
{
    constexpr quint32 GLOBAL = 1;
    r.Reclamar(GLOBAL, "el mapa global");
    r.Igual(quint64(Filas_De_Pagina(r, GLOBAL, DE_GLOBAL).size()), 2, GLOBAL, "mapas globales");
    const Mapa libres = Leer_Mapa(r, Puntero(GLOBAL << 8));
    quint32 siguiente = r.Paginas();
    for (const quint32 pagina : libres.paginas)
        r.Exigir(pagina >= r.Paginas() && pagina == siguiente++, GLOBAL,
                 QStringLiteral("la página %1 no está o no debe estar libre").arg(pagina));
    r.Igual(siguiente, std::max(libres.alcance, r.Paginas()), GLOBAL, "fin de las páginas libres");
    r.Exigir(libres.inicio == 0 && libres.alcance >= r.Paginas(), GLOBAL,
             "el mapa global no llega al final del fichero");
    r.Exigir(Fila_En(r, Puntero(GLOBAL << 8 | 1)).Ceros(), GLOBAL, "páginas liberadas");
}

void Revisar_Pagina_De_Mapas(Revision& r, quint32 pagina, const QList<quint32>& punteros)
{
    r.Reclamar(pagina, "los mapas");
    const auto filas = quint32(Filas_De_Pagina(r, pagina, DE_MAPAS).size());
    QList<int> usos(filas);
    for (const quint32 crudo : punteros) {
        const Puntero p(crudo);
        if (p.pagina != pagina) continue;
        if (r.Exigir(p.fila < filas, pagina, "mapa que no hay")) ++usos[p.fila];
    }
    for (quint32 fila = 0; fila < filas; ++fila)
        r.Igual(quint64(usos[fila]), 1, pagina, QStringLiteral("dueños del mapa %1").arg(fila));
}

} // namespace Revision_Mdb
