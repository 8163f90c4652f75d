#include "tools/revisar_mdb/Definicion.h"

#include <algorithm>
#include <set>

namespace Revision_Mdb {

namespace {

constexpr qsizetype CABECERA = 8; // of each page of a definition
constexpr quint32 SELLO = 0x659;
constexpr quint32 SELLO_INDICE = 0x783;
constexpr quint16 FIN = 0xFFFF;
constexpr quint16 IND_SIEMPRE = 0x80, IND_CONOCIDAS = 0x8B;
constexpr quint8 FIJA = 0x01, SIEMPRE = 0x02, DE_SISTEMA = 0x10, DE_CUENTA = 0x20;

// The whole definition, without the heads of its further pages.
QByteArray Juntar_Paginas(Revision& r, quint32 primera, const QString& nombre)
{
    const quint32 largo = r.Pagina(primera).U32(8);
    QByteArray todo;
    std::set<quint32> vistas;
    quint32 pagina = primera;
    do {
        if (!vistas.insert(pagina).second) throw Rotura{"la definición vuelve sobre sí misma"};
        r.Reclamar(pagina, "la definición de " + nombre);
        const Bytes b = r.Pagina(pagina);
        r.Igual(b.U8(0), DEFINICION, pagina, "clase de página");
        r.Igual(b.U8(1), 1, pagina, "marca de página");
        const qsizetype desde = todo.isEmpty() ? 0 : CABECERA;
        const qsizetype falta = std::max<qsizetype>(0, largo - todo.size());
        const qsizetype trozo = std::min<qsizetype>(PAGINA - desde, falta);
        r.Exigir(trozo > 0, pagina, "página de definición de más");
        todo += b.Parte(desde, trozo).Vista();
        r.Igual(b.U16(2), quint64(std::max<qsizetype>(0, PAGINA - desde - trozo - CABECERA)),
                pagina, "bytes libres");
        r.Exigir(b.Desde(desde + trozo).Ceros(), pagina, "bytes sin uso que no son cero");
        pagina = b.U32(4);
    } while (pagina != 0);
    r.Igual(quint64(todo.size()), largo, primera, "largo de la definición");
    return todo;
}

void Leer_Columna(Revision& r, Cursor& c, Definicion& d)
{
    Columna col;
    col.tipo = c.U8();
    r.Igual(c.U32(), SELLO, d.pagina, "sello de columna");
    col.id = c.U16();
    col.variable = c.U16();
    const quint16 ordinal = c.U16();
    r.Igual(c.U32(), 0x409, d.pagina, "idioma de columna");
    col.banderas = c.U8();
    col.ampliadas = c.U8();
    r.Igual(c.U32(), 0, d.pagina, "hueco de columna");
    col.lugar = c.U16();
    col.largo = c.U16();
    r.Igual(ordinal, d.sistema ? 0 : col.id, d.pagina, "ordinal de columna");
    d.columnas << col;
}

void Leer_Indice(Revision& r, Cursor& c, const Definicion& d, Indice& i)
{
    r.Igual(c.U32(), SELLO_INDICE, d.pagina, "sello de índice");
    bool acabada = false;
    for (int k = 0; k < 10; ++k) {
        const quint16 id = c.U16();
        const bool vacia = id == 0xFFFF;
        r.Igual(c.U8(), vacia ? 0 : 1, d.pagina, "sentido de un índice");
        r.Exigir(vacia || !acabada, d.pagina, "columnas de índice con huecos");
        acabada = acabada || vacia;
        if (vacia) continue;
        if (r.Exigir(d.Por_Id(id) != nullptr, d.pagina, "índice sobre una columna que no hay"))
            i.columnas << id;
    }
    r.Exigir(!i.columnas.isEmpty(), d.pagina, "índice sin columnas");
    i.mapa = c.U32();
    i.raiz = c.U32();
    r.Igual(c.U32(), 0, d.pagina, "hueco de índice");
    i.banderas = c.U16();
    r.Exigir((i.banderas & IND_SIEMPRE) != 0 && (i.banderas & ~IND_CONOCIDAS) == 0, d.pagina,
             "banderas de índice");
    r.Igual(c.U32(), 0, d.pagina, "hueco de índice");
}

Nombre_Indice Leer_Nombre_De_Indice(Revision& r, Cursor& c, const Definicion& d)
{
    Nombre_Indice n;
    r.Igual(c.U32(), SELLO, d.pagina, "sello de índice");
    n.numero = c.U32();
    n.real = c.U32();
    r.Exigir(n.real < quint64(d.indices.size()), d.pagina, "índice sin índice real");
    r.Igual(c.U8(), 0, d.pagina, "relación de un índice");
    r.Igual(c.U32(), 0xFFFFFFFF, d.pagina, "relación de un índice");
    r.Igual(c.U32(), 0, d.pagina, "relación de un índice");
    r.Igual(c.U16(), 0x0404, d.pagina, "relación de un índice");
    n.tipo = c.U8();
    r.Exigir(n.tipo <= 1, d.pagina, "tipo de índice");
    r.Igual(c.U32(), 0, d.pagina, "hueco de índice");
    return n;
}

void Revisar_Columna(Revision& r, const Definicion& d, const Columna& col)
{
    const auto mal = [&](const QString& que) { r.Queja(d.pagina, col.nombre + ": " + que); };
    static const std::set<quint8> tipos = {LOGICO,  OCTETO, ENTERO, LARGO, FECHA_HORA,
                                           BINARIO, TEXTO,  OLE,    MEMO};
    if (!tipos.contains(col.tipo)) return mal("tipo desconocido");
    const auto antes = std::count_if(d.columnas.begin(), d.columnas.end(),
                                     [&](const Columna& c) { return !c.Fija() && c.id < col.id; });
    if (col.variable != antes) mal("índice variable");
    const quint8 cuenta = col.tipo == BINARIO ? col.banderas & DE_CUENTA : 0;
    if (col.banderas != (SIEMPRE | (col.Fija() ? FIJA : 0) | (d.sistema ? DE_SISTEMA : 0) | cuenta))
        mal("banderas");
    if (col.ampliadas > (col.tipo == TEXTO && !d.sistema ? 1 : 0)) mal("banderas ampliadas");
    if (!col.Fija() && col.lugar != 0) mal("desplazamiento");
    const auto largo_bueno = [&] {
        switch (col.tipo) {
        case LOGICO:
        case OCTETO:
            return col.largo == 1;
        case ENTERO:
            return col.largo == 2;
        case LARGO:
            return col.largo == 4;
        case FECHA_HORA:
            return col.largo == 8;
        case TEXTO:
            return col.largo % 2 == 0 && col.largo >= 2 && col.largo <= 510;
        case BINARIO:
            return col.largo >= 1 && col.largo <= 510;
        default:
            return col.largo == 0;
        }
    };
    if (!largo_bueno()) mal("largo");
}

void Revisar_Columnas(Revision& r, const Definicion& d)
{
    std::set<quint16> ids;
    QStringList nombres;
    std::set<int> bytes_fijos; // each claimed once
    for (const Columna& c : d.columnas) {
        Revisar_Columna(r, d, c);
        Revisar_Nombre(r, d.pagina, c.nombre);
        r.Exigir(c.id < d.columnas.size() && ids.insert(c.id).second, d.pagina,
                 "número de columna repetido o de más");
        r.Exigir(!nombres.contains(c.nombre, Qt::CaseInsensitive), d.pagina,
                 "columna repetida: " + c.nombre);
        nombres << c.nombre;
        for (int b = 0; c.Fija() && c.tipo != LOGICO && b < c.largo; ++b)
            r.Exigir(bytes_fijos.insert(c.lugar + b).second, d.pagina,
                     c.nombre + ": pisa a otra columna");
    }
    r.Exigir(bytes_fijos.empty() || *bytes_fijos.rbegin() + 1 == int(bytes_fijos.size()), d.pagina,
             "huecos entre las columnas fijas");
    const auto variables = std::count_if(d.columnas.begin(), d.columnas.end(),
                                         [](const Columna& c) { return !c.Fija(); });
    r.Igual(d.variables, quint64(variables), d.pagina, "columnas variables");
    if (d.sistema) return;
    for (quint16 k = 0; k < d.columnas.size(); ++k)
        r.Igual(d.columnas[k].id, k, d.pagina, "orden de las columnas");
}

void Revisar_Indices(Revision& r, const Definicion& d)
{
    std::set<quint32> reales, numeros;
    for (const Nombre_Indice& n : d.nombres) {
        r.Exigir(!n.nombre.isEmpty(), d.pagina, "índice sin nombre");
        r.Exigir(reales.insert(n.real).second, d.pagina, "índice real con dos nombres");
        r.Exigir(n.numero < quint64(d.nombres.size()) && numeros.insert(n.numero).second, d.pagina,
                 "número de índice repetido o de más");
    }
    r.Igual(reales.size(), quint64(d.indices.size()), d.pagina, "índices con nombre");
    std::set<quint16> largas;
    for (const Columna_Larga& l : d.largas) {
        const Columna* c = d.Por_Id(l.id);
        r.Exigir(c && c->Larga() && largas.insert(l.id).second, d.pagina,
                 "mapas de una columna que no los tiene");
    }
    for (const Columna& c : d.columnas)
        r.Exigir(!c.Larga() || largas.contains(c.id), d.pagina, c.nombre + ": faltan sus mapas");
}

} // namespace

const Columna* Definicion::Por_Id(quint16 id) const
{
    const auto c = std::find_if(columnas.begin(), columnas.end(),
                                [id](const Columna& x) { return x.id == id; });
    return c == columnas.end() ? nullptr : &*c;
}

const Columna* Definicion::Por_Nombre(const QString& buscado) const
{
    const auto c = std::find_if(columnas.begin(), columnas.end(),
                                [&](const Columna& x) { return x.nombre == buscado; });
    return c == columnas.end() ? nullptr : &*c;
}

int Definicion::Bytes_Fijos() const
{
    int bytes = 0;
    for (const Columna& c : columnas)
        if (c.Fija() && c.tipo != LOGICO) bytes = std::max(bytes, c.lugar + c.largo);
    return bytes;
}

void Revisar_Nombre(Revision& r, quint32 pagina, const QString& nombre)
{
    bool bueno = !nombre.isEmpty() && nombre.size() <= 64 && !nombre.startsWith(' ');
    for (const QChar c : nombre)
        bueno = bueno && c >= QChar(' ') && !QStringLiteral(".!`[]").contains(c);
    r.Exigir(bueno, pagina, "nombre no válido: '" + nombre + "'");
}

Definicion Leer_Definicion(Revision& r, quint32 pagina, const QString& nombre)
{
    const QByteArray todo = Juntar_Paginas(r, pagina, nombre);
    Cursor c{Bytes(todo)};
    Definicion d;
    d.nombre = nombre;
    d.pagina = pagina;
    c.Parte(0x0C);
    r.Igual(c.U32(), SELLO, pagina, "sello de la definición");
    d.filas = c.U32();
    r.Igual(c.U32(), 0, pagina, "contador de la definición");
    r.Igual(c.U32(), 1, pagina, "constante de la definición");
    r.Exigir(c.Parte(12).Ceros(), pagina, "hueco de la definición");
    const quint8 clase = c.U8();
    r.Exigir(clase == 'S' || clase == 'N', pagina, "clase de tabla");
    d.sistema = clase == 'S';
    const quint16 columnas = c.U16();
    d.variables = c.U16();
    r.Igual(c.U16(), columnas, pagina, "segunda cuenta de columnas");
    r.Exigir(columnas >= 1 && columnas <= 255, pagina, "cuenta de columnas");
    const quint32 logicos = c.U32();
    const quint32 reales = c.U32();
    d.propias = c.U32();
    d.libres = c.U32();
    if (reales > 32 || logicos > 32) throw Rotura{"demasiados índices"};
    for (quint32 k = 0; k < reales; ++k) {
        Indice i;
        r.Igual(c.U32(), 0, pagina, "hueco de claves");
        i.claves = c.U32();
        r.Igual(c.U32(), 0, pagina, "hueco de claves");
        d.indices << i;
    }
    for (quint16 k = 0; k < columnas; ++k)
        Leer_Columna(r, c, d);
    for (Columna& col : d.columnas)
        col.nombre = c.Parte(c.U16()).Utf16();
    for (Indice& i : d.indices)
        Leer_Indice(r, c, d, i);
    for (quint32 k = 0; k < logicos; ++k)
        d.nombres << Leer_Nombre_De_Indice(r, c, d);
    for (Nombre_Indice& n : d.nombres)
        n.nombre = c.Parte(c.U16()).Utf16();
    for (quint16 id = c.U16(); id != FIN; id = c.U16()) {
        const quint32 propias = c.U32();
        d.largas.append({id, propias, c.U32()});
    }
    r.Exigir(c.Acabado(), pagina, "bytes de más al final de la definición");
    Revisar_Columnas(r, d);
    Revisar_Indices(r, d);
    return d;
}

} // namespace Revision_Mdb
