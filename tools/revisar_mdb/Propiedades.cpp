#include "tools/revisar_mdb/Propiedades.h"

#include "tools/revisar_mdb/Filas.h"

#include <algorithm>
#include <set>

namespace Revision_Mdb {

namespace {

constexpr quint32 SUELTO = 0x40000000;
constexpr quint32 EN_EL_REGISTRO = 0x80000000;
constexpr quint32 LARGO_SUELTO_MAXIMO = 3816;
constexpr qsizetype PIEZA_MAXIMA = 4072;

// Rows of long-value pages in use, by page; and which pages are links of a chain.
struct Usos {
    std::map<quint32, std::set<quint32>> filas;
    std::set<quint32> eslabones;
};

void Apuntar(Revision& r, Usos& usos, Puntero p)
{
    r.Exigir(usos.filas[p.pagina].insert(p.fila).second, p.pagina, "valor largo de dos dueños");
}

QByteArray Leer_Cadena(Revision& r, Usos& usos, Puntero primera, quint32 sello)
{
    QByteArray todo;
    Puntero p = primera;
    r.Exigir(sello != 0, p.pagina, "cadena sin sello");
    for (bool cabeza = true;; cabeza = false) {
        Apuntar(r, usos, p);
        if (!usos.eslabones.insert(p.pagina).second)
            throw Rotura{"la cadena vuelve sobre sí misma"};
        const QList<Bytes> filas = Filas_De_Pagina(r, p.pagina, DE_LARGOS, cabeza ? sello : 0);
        r.Exigir(filas.size() == 1 && p.fila == 0, p.pagina, "eslabón con otras filas");
        const Bytes fila = Fila_En(r, p);
        const quint32 siguiente = fila.U32(0);
        const Bytes pieza = fila.Desde(4);
        r.Exigir(pieza.Largo() > 0 && pieza.Largo() <= PIEZA_MAXIMA, p.pagina, "largo de la pieza");
        todo += pieza.Vista();
        if (siguiente == 0) return todo;
        p = Puntero(siguiente);
    }
}

QByteArray Leer_Valor(Revision& r, Usos& usos, Bytes valor)
{
    if (valor.Largo() != 12) throw Rotura{"valor largo de medida que no es"};
    const quint32 largo = valor.U32(0) & ~(SUELTO | EN_EL_REGISTRO);
    const Puntero p(valor.U32(4));
    QByteArray bytes;
    if ((valor.U32(0) & EN_EL_REGISTRO) != 0) throw Rotura{"propiedades dentro del registro"};
    if ((valor.U32(0) & SUELTO) != 0) {
        Apuntar(r, usos, p);
        r.Igual(valor.U32(8), 0, p.pagina, "sello de un valor suelto");
        r.Exigir(largo <= LARGO_SUELTO_MAXIMO, p.pagina, "valor largo que pide cadena");
        bytes = Fila_En(r, p).Vista().toByteArray();
    } else {
        bytes = Leer_Cadena(r, usos, p, valor.U32(8));
        r.Exigir(largo > LARGO_SUELTO_MAXIMO, p.pagina, "cadena para un valor corto");
    }
    r.Igual(quint64(bytes.size()), largo, p.pagina, "largo de un valor largo");
    return bytes;
}

// Length in front that counts itself, too.
Bytes Leer_Con_Largo(Cursor& c)
{
    const quint32 largo = c.U32();
    if (largo < 4) throw Rotura{"bloque de propiedades sin largo"};
    return c.Parte(qsizetype(largo) - 4);
}

void Revisar_Bloque_De_Columna(Revision& r, const Definicion& tabla, Bytes bloque,
                               qsizetype& anterior)
{
    const quint32 pagina = tabla.pagina;
    Cursor c(bloque);
    r.Igual(c.U16(), 0x0001, pagina, "clase de un bloque de propiedades");
    Cursor dueno(Leer_Con_Largo(c));
    const Columna* columna = tabla.Por_Nombre(dueno.Parte(dueno.U16()).Utf16());
    if (!columna) throw Rotura{"propiedades de una columna que no hay"};
    r.Exigir(dueno.Acabado(), pagina, "bytes de más en el dueño de unas propiedades");
    const qsizetype lugar = columna - tabla.columnas.constData();
    r.Exigir(lugar > anterior, pagina, "propiedades sin el orden de las columnas");
    anterior = lugar;
    r.Igual(c.U16(), 9, pagina, "largo de una propiedad");
    r.Igual(c.U8(), 1, pagina, "propiedad de esquema");
    r.Igual(c.U8(), LOGICO, pagina, "tipo de una propiedad");
    r.Igual(c.U16(), 0, pagina, "nombre de una propiedad");
    r.Igual(c.U16(), 1, pagina, "largo del valor de una propiedad");
    const quint8 valor = c.U8();
    r.Exigir(valor == 0xFF || valor == 0x01, pagina, "valor de una propiedad");
    r.Exigir(c.Acabado(), pagina, "bytes de más en una propiedad");
}

void Revisar_Contenido(Revision& r, const Definicion& tabla, const QByteArray& bytes)
{
    Cursor c{Bytes(bytes)};
    r.Exigir(c.Parte(4) == QByteArrayView("MR2", 4), tabla.pagina, "marca de las propiedades");
    Cursor nombres(Leer_Con_Largo(c));
    r.Igual(nombres.U16(), 0x80, tabla.pagina, "clase del bloque de nombres");
    r.Exigir(nombres.Parte(nombres.U16()).Utf16() == QStringLiteral("AllowZeroLength") &&
                 nombres.Acabado(),
             tabla.pagina, "nombres de las propiedades");
    r.Exigir(!c.Acabado(), tabla.pagina, "propiedades de ninguna columna");
    qsizetype anterior = -1;
    while (!c.Acabado())
        Revisar_Bloque_De_Columna(r, tabla, Leer_Con_Largo(c), anterior);
}

void Revisar_Paginas(Revision& r, const Usos& usos, const Mapa& propias, const Mapa& libres)
{
    quint32 ultima_suelta = 0;
    for (const quint32 pagina : propias.paginas) {
        r.Reclamar(pagina, "las propiedades");
        const auto uso = usos.filas.find(pagina);
        if (!r.Exigir(uso != usos.filas.end(), pagina, "página de propiedades sin valores"))
            continue;
        if (usos.eslabones.contains(pagina)) continue;
        ultima_suelta = pagina;
        r.Paso_Sobre(pagina, [&] {
            r.Igual(quint64(Filas_De_Pagina(r, pagina, DE_LARGOS).size()), uso->second.size(),
                    pagina, "valores en uso");
        });
    }
    for (const auto& [pagina, filas] : usos.filas)
        r.Exigir(propias.paginas.contains(pagina), pagina, "valor largo en una página ajena");
    const QList<quint32> con_sitio =
        ultima_suelta == 0 ? QList<quint32>{} : QList<quint32>{ultima_suelta};
    r.Exigir(libres.paginas == con_sitio, libres.pagina, "páginas de propiedades con sitio");
}

} // namespace

void Revisar_Propiedades(Revision& r, const QList<Propiedades_De>& valores, const Mapa& propias,
                         const Mapa& libres)
{
    Usos usos;
    for (const Propiedades_De& p : valores)
        r.Paso_Sobre(p.tabla->pagina,
                     [&] { Revisar_Contenido(r, *p.tabla, Leer_Valor(r, usos, p.valor)); });
    Revisar_Paginas(r, usos, propias, libres);
}

} // namespace Revision_Mdb
