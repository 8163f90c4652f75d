#include "export/mdb/Mapa_Jet.h"

#include "export/mdb/Pagina_Datos.h"

#include <algorithm>

namespace Jet {

namespace {

enum Forma_Mapa : quint8 { EN_LINEA = 0, POR_REFERENCIA = 1 };

constexpr quint32 BYTES_MINIMOS = 64; // of an inline bitmap
constexpr quint32 VENTANA_MINIMA = 8 * BYTES_MINIMOS;
constexpr qsizetype CABECERA_EN_LINEA = 5;
constexpr int REFERENCIAS = 17; // bitmap pages a map can name

constexpr int CABECERA_BITMAP = 4;
constexpr quint32 PAGINAS_POR_BITMAP = 8 * (TAMANO_PAGINA - CABECERA_BITMAP);
static_assert(PAGINAS_POR_BITMAP * REFERENCIAS >= PAGINAS_MAXIMAS);

// Page 1: the longest global map that leaves room for the second, empty one.
constexpr qsizetype GLOBAL_EN_LINEA_MAXIMO = 4005;

quint32 Bytes_Para(quint32 paginas)
{
    return std::max(BYTES_MINIMOS, (paginas + 31) / 32 * 4);
}

// Sets the bits of those pages of `tramos` that lie in the `bits` pages from `inicio`.
void Marcar_Bits(uchar* bitmap, const QList<Tramo>& tramos, quint32 inicio, quint32 bits)
{
    for (const Tramo& t : tramos) {
        const quint32 desde = std::max(t.desde, inicio);
        const quint32 tope = std::min(t.hasta + 1, inicio + bits);
        for (quint32 pagina = desde; pagina < tope; ++pagina) {
            const quint32 bit = pagina - inicio;
            bitmap[bit / 8] |= static_cast<uchar>(1U << (bit % 8));
        }
    }
}

QByteArray Fila_En_Linea(const QList<Tramo>& tramos, quint32 inicio, quint32 bytes)
{
    QByteArray bitmap(bytes, '\0');
    Marcar_Bits(reinterpret_cast<uchar*>(bitmap.data()), tramos, inicio, 8 * bytes);
    return Tira().U8(EN_LINEA).U32(inicio).Bytes(bitmap).Hecha();
}

QByteArray Fila_En_Linea(const Mapa& mapa)
{
    if (mapa.paginas.isEmpty()) return Fila_En_Linea({}, 0, BYTES_MINIMOS);
    const bool ventana = mapa.forma == Mapa::VENTANA;
    const quint32 inicio =
        ventana ? mapa.paginas.first().desde / VENTANA_MINIMA * VENTANA_MINIMA : 0;
    return Fila_En_Linea(mapa.paginas, inicio, Bytes_Para(mapa.paginas.last().hasta + 1 - inicio));
}

QByteArray Fila_Por_Referencia(const QList<Tramo>& tramos, quint32 bitmaps, Paginas& paginas)
{
    Tira fila;
    fila.U8(POR_REFERENCIA);
    for (quint32 k = 0; k < REFERENCIAS; ++k) {
        Pagina bitmap = Pagina_Nueva(Clase_Pagina::MAPA);
        const quint32 inicio = k * PAGINAS_POR_BITMAP;
        const bool toca = std::any_of(tramos.begin(), tramos.end(), [&](const Tramo& t) {
            return t.desde < inicio + PAGINAS_POR_BITMAP && t.hasta >= inicio;
        });
        if (!toca && k >= bitmaps) {
            fila.U32(0);
            continue;
        }
        const quint32 numero = paginas.Reservar();
        Marcar_Bits(bitmap.data() + CABECERA_BITMAP, tramos, inicio, PAGINAS_POR_BITMAP);
        paginas.Escribir(numero, bitmap);
        fila.U32(numero);
    }
    return fila.Hecha();
}

Pagina Pagina_De_Filas(quint32 dueno, const QList<QByteArray>& filas)
{
    Pagina_Datos pagina(dueno);
    for (const QByteArray& fila : filas)
        pagina.Anadir(fila);
    return pagina.Acabada();
}

bool Caben(const QList<QByteArray>& filas)
{
    Pagina_Datos prueba(DUENO_MAPAS);
    return std::all_of(filas.begin(), filas.end(),
                       [&](const QByteArray& fila) { return prueba.Anadir(fila).has_value(); });
}

} // namespace

void Mapa::Marcar(quint32 pagina)
{
    if (!paginas.isEmpty() && paginas.last().hasta + 1 == pagina)
        paginas.last().hasta = pagina;
    else
        paginas.append({pagina, pagina});
}

Pagina Pagina_De_Mapas(const QList<Mapa>& mapas, Paginas& paginas)
{
    QList<QByteArray> filas;
    for (const Mapa& mapa : mapas)
        filas << Fila_En_Linea(mapa);
    while (!Caben(filas)) {
        const auto larga = std::max_element(
            filas.begin(), filas.end(),
            [](const QByteArray& a, const QByteArray& b) { return a.size() < b.size(); });
        *larga = Fila_Por_Referencia(mapas[larga - filas.begin()].paginas, 0, paginas);
    }
    return Pagina_De_Filas(DUENO_MAPAS, filas);
}

Pagina Pagina_Mapa_Global(Paginas& paginas)
{
    const auto tras_el_final = [](quint32 total, quint32 alcance) {
        return total < alcance ? QList<Tramo>{{total, alcance - 1}} : QList<Tramo>{};
    };
    const quint32 bytes = Bytes_Para(paginas.Total());
    QByteArray fila;
    if (CABECERA_EN_LINEA + bytes <= GLOBAL_EN_LINEA_MAXIMO) {
        fila = Fila_En_Linea(tras_el_final(paginas.Total(), 8 * bytes), 0, bytes);
    } else {
        // The bitmap pages are pages of the file too, and counted as used.
        quint32 bitmaps = 0;
        while (bitmaps * PAGINAS_POR_BITMAP < paginas.Total() + bitmaps)
            ++bitmaps;
        const quint32 total = paginas.Total() + bitmaps;
        fila = Fila_Por_Referencia(tras_el_final(total, bitmaps * PAGINAS_POR_BITMAP), bitmaps,
                                   paginas);
    }
    const QByteArray liberadas = Fila_En_Linea(Mapa{});
    return Pagina_De_Filas(DUENO_GLOBAL, {fila, liberadas});
}

} // namespace Jet
