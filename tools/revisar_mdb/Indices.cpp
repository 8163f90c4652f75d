#include "tools/revisar_mdb/Indices.h"

#include "tools/revisar_mdb/Mapas.h"

#include <algorithm>
#include <set>
#include <string>

namespace Revision_Mdb {

namespace {

constexpr qsizetype BITS = 0x1B;
constexpr qsizetype ENTRADAS = 0x1E0;
constexpr qsizetype LARGO_PUNTERO = 4;
constexpr quint16 UNICO = 0x01;
constexpr char CON_VALOR = 0x7F;

using Clave = std::string;

// Where a weight isn't known, any may stand.
struct Esperada {
    Clave delante;
    bool exacta = true;
    Clave detras; // its row
};

void Al_Reves(Clave& clave, quint32 valor)
{
    for (int giro = 24; giro >= 0; giro -= 8)
        clave += char(valor >> giro);
}

// @return false when a character has no known weight
bool Pesar(const QString& texto, Clave& clave)
{
    static const char letras[] = "\x4A\x4C\x4D\x4F\x51\x53\x55\x57\x59\x5B\x5C\x5E\x60"
                                 "\x62\x64\x66\x68\x69\x6B\x6D\x6F\x71\x73\x75\x76\x78";
    for (const QChar q : texto) {
        const char c = q.toUpper().toLatin1();
        if (c >= 'A' && c <= 'Z')
            clave += letras[c - 'A'];
        else if (c >= '0' && c <= '9')
            clave += char(0x36 + 2 * (c - '0'));
        else if (c == ' ')
            clave += '\x07';
        else if (c == '_')
            clave += "\x2B\x03";
        else
            return false;
    }
    clave += '\x01';
    clave += '\0';
    return true;
}

Esperada Esperar(const Definicion& tabla, const Indice& indice, const Fila_Indexada& fila)
{
    Esperada e;
    for (const quint16 id : indice.columnas) {
        const Columna* c = tabla.Por_Id(id);
        const std::optional<Bytes>& valor = fila.registro[id];
        if (!c || !valor) throw Rotura{"clave nula en " + tabla.nombre};
        e.delante += CON_VALOR;
        if (c->tipo == LARGO)
            Al_Reves(e.delante, valor->U32(0) ^ 0x80000000);
        else if (c->tipo != TEXTO)
            throw Rotura{"clave de un tipo que no se indexa"};
        else if (!Pesar(valor->Utf16(), e.delante))
            e.exacta = false;
    }
    Al_Reves(e.detras, fila.pagina << 8 | fila.fila);
    return e;
}

bool Concuerda(const Esperada& e, const Clave& entrada)
{
    if (e.exacta) return entrada == e.delante + e.detras;
    const std::size_t cola = LARGO_PUNTERO + 1; // the weights end in a zero
    return entrada.size() >= e.delante.size() + cola && entrada.starts_with(e.delante) &&
           entrada[entrada.size() - cola] == '\0' && entrada.ends_with(e.detras);
}

QList<Clave> Leer_Hoja(Revision& r, quint32 pagina, quint32 dueno)
{
    const Bytes b = r.Pagina(pagina);
    r.Igual(b.U8(0), HOJA, pagina, "clase de página");
    r.Igual(b.U8(1), 1, pagina, "marca de página");
    r.Igual(b.U32(4), dueno, pagina, "dueño de la página");
    r.Exigir(b.Parte(8, BITS - 8).Ceros(), pagina, "vecinos, prefijo o nivel de una hoja única");
    QList<Clave> entradas;
    qsizetype inicio = 0;
    for (qsizetype bit = 0; bit < 8 * (ENTRADAS - BITS); ++bit) {
        if ((b.U8(BITS + bit / 8) >> (bit % 8) & 1) == 0) continue;
        const QByteArrayView entrada = b.Parte(ENTRADAS + inicio, bit - inicio).Vista();
        r.Exigir(entrada.size() > LARGO_PUNTERO, pagina, "entrada de índice sin clave");
        entradas << Clave(entrada.begin(), entrada.end());
        inicio = bit;
    }
    r.Igual(b.U16(2), quint64(PAGINA - ENTRADAS - inicio), pagina, "bytes libres");
    r.Exigir(b.Desde(ENTRADAS + inicio).Ceros(), pagina, "bytes sin uso que no son cero");
    return entradas;
}

void Revisar_Indice(Revision& r, const Definicion& tabla, const Indice& indice,
                    const QList<Fila_Indexada>& filas)
{
    const quint32 hoja = indice.raiz;
    r.Reclamar(hoja, "un índice de " + tabla.nombre);
    r.Exigir(Leer_Mapa(r, Puntero(indice.mapa)).paginas == QList<quint32>{hoja}, hoja,
             "el mapa del índice no dice su página");
    const QList<Clave> entradas = Leer_Hoja(r, hoja, tabla.pagina);
    // std::string compares its bytes without a sign, as the engine does.
    r.Exigir(std::is_sorted(entradas.begin(), entradas.end()), hoja, "entradas sin ordenar");
    std::set<Clave> claves;
    for (const Clave& e : entradas)
        claves.insert(e.substr(0, e.size() - std::min<std::size_t>(e.size(), LARGO_PUNTERO)));
    r.Igual(indice.claves, claves.size(), tabla.pagina, "claves distintas de un índice");
    r.Exigir((indice.banderas & UNICO) == 0 || claves.size() == std::size_t(entradas.size()), hoja,
             "claves repetidas en un índice único");
    r.Igual(quint64(entradas.size()), quint64(filas.size()), hoja, "entradas del índice");
    for (const Fila_Indexada& fila : filas) {
        const Esperada e = Esperar(tabla, indice, fila);
        const auto veces = std::count_if(entradas.begin(), entradas.end(),
                                         [&](const Clave& c) { return Concuerda(e, c); });
        r.Exigir(veces == 1, hoja,
                 QStringLiteral("la fila %1 de la página %2 no está en el índice")
                     .arg(fila.fila)
                     .arg(fila.pagina));
    }
}

} // namespace

void Revisar_Indices_De(Revision& r, const Definicion& tabla, const QList<Fila_Indexada>& filas)
{
    for (const Indice& indice : tabla.indices)
        r.Paso_Sobre(indice.raiz, [&] { Revisar_Indice(r, tabla, indice, filas); });
}

} // namespace Revision_Mdb
