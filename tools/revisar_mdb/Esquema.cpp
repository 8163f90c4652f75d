#include "tools/revisar_mdb/Esquema.h"

namespace Revision_Mdb {

namespace {

// Per table its columns in the stored order: name, type, id, variable index, fixed offset, bytes,
// flags; type and flags in hexadecimal. Then its indexes: columns, map row, root, flags; their
// names: name, number, place, type; and the columns with maps of their own: id, first map row.
struct Esquema {
    const char* tabla;
    const char* columnas;
    const char* indices;
    const char* nombres;
    const char* largas;
    int mapa;
};
constexpr Esquema ESQUEMAS[] = {
    {"MSysObjects",
     "Connect 0C 9 3 0 0 12|Database 0C 8 2 0 0 12|DateCreate 08 4 1 10 8 13|"
     "DateUpdate 08 5 1 18 8 13|Flags 04 7 2 26 4 13|ForeignName 0A 10 4 0 510 12|"
     "Id 04 0 0 0 4 13|Lv 0B 13 7 0 0 12|LvExtra 0B 16 10 0 0 12|LvModule 0B 15 9 0 0 12|"
     "LvProp 0B 14 8 0 0 12|Name 0A 2 0 0 510 12|Owner 09 6 1 0 510 32|ParentId 04 1 0 4 4 13|"
     "RmtInfoLong 0B 12 6 0 0 12|RmtInfoShort 09 11 5 0 510 12|Type 03 3 1 8 2 13",
     "1,2 16 7 81|0 17 8 81", "Id 1 1 1|ParentIdName 0 0 0", "9 4|8 2|13 8|16 14|15 12|14 10|12 6",
     0},
    {"MSysACEs",
     "ACM 04 2 1 4 4 13|FInheritable 01 3 1 0 1 13|ObjectId 04 0 0 0 4 13|SID 09 1 0 0 510 32",
     "0 20 9 88", "ObjectId 0 0 0", "", 18},
    {"MSysQueries",
     "Attribute 02 1 0 4 1 13|Expression 0C 5 3 0 0 12|Flag 03 6 4 5 2 13|LvExtra 04 7 4 7 4 13|"
     "Name1 0A 3 1 0 510 12|Name2 0A 4 2 0 510 12|ObjectId 04 0 0 0 4 13|Order 09 2 0 0 510 12",
     "0,1,2 25 10 81", "ObjectIdAttribute 0 0 1", "5 23", 21},
    {"MSysRelationships",
     "ccolumn 04 2 1 4 4 13|grbit 04 1 1 0 4 13|icolumn 04 3 1 8 4 13|szColumn 0A 5 2 0 510 12|"
     "szObject 0A 4 1 0 510 12|szReferencedColumn 0A 7 4 0 510 12|"
     "szReferencedObject 0A 6 3 0 510 12|szRelationship 0A 0 0 0 510 12",
     "0 28 11 82|4 29 12 82|6 30 13 82",
     "szObject 1 1 0|szReferencedObject 2 2 0|szRelationship 0 0 0", "", 26},
};
constexpr quint32 MAPAS = 6;

QString Hexa(quint32 valor)
{
    return QString::number(valor, 16).toUpper().rightJustified(2, u'0');
}

// A pointer that must lead to the page of the system's maps.
QString Fila_De_Mapa(quint32 crudo)
{
    const Puntero p(crudo);
    return p.pagina == MAPAS ? QString::number(p.fila) : QStringLiteral("?");
}

template <class Lista, class Describir> QString Unir(const Lista& lista, Describir describir)
{
    QStringList partes;
    for (const auto& x : lista)
        partes << describir(x);
    return partes.join(u'|');
}

QString Describir_Columna(const Columna& c)
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
        .arg(c.nombre, Hexa(c.tipo))
        .arg(c.id)
        .arg(c.variable)
        .arg(c.lugar)
        .arg(c.largo)
        .arg(Hexa(c.banderas));
}

QString Describir_Indice(const Indice& i)
{
    QStringList columnas;
    for (const quint16 id : i.columnas)
        columnas << QString::number(id);
    return QStringLiteral("%1 %2 %3 %4")
        .arg(columnas.join(u','), Fila_De_Mapa(i.mapa))
        .arg(i.raiz)
        .arg(Hexa(i.banderas));
}

} // namespace

void Revisar_Esquema(Revision& r, const Definicion& d)
{
    const auto comparar = [&](const QString& hay, const char* debe) {
        r.Exigir(hay == QLatin1String(debe), d.pagina,
                 d.nombre + " no está definida como debe: " + hay);
    };
    for (const Esquema& e : ESQUEMAS) {
        if (d.nombre != QLatin1String(e.tabla)) continue;
        r.Exigir(d.sistema, d.pagina, d.nombre + " no es del sistema");
        comparar(Unir(d.columnas, Describir_Columna), e.columnas);
        comparar(Unir(d.indices, Describir_Indice), e.indices);
        comparar(Unir(d.nombres,
                      [](const Nombre_Indice& n) {
                          return QStringLiteral("%1 %2 %3 %4")
                              .arg(n.nombre)
                              .arg(n.numero)
                              .arg(n.real)
                              .arg(n.tipo);
                      }),
                 e.nombres);
        comparar(Unir(d.largas,
                      [](const Columna_Larga& l) {
                          return QStringLiteral("%1 %2").arg(l.id).arg(Fila_De_Mapa(l.propias));
                      }),
                 e.largas);
        for (const Columna_Larga& l : d.largas)
            r.Igual(l.libres, l.propias + 1, d.pagina, "mapa de páginas con sitio");
        r.Igual(d.propias, MAPAS << 8 | quint32(e.mapa), d.pagina, "mapa de las páginas");
        r.Igual(d.libres, d.propias + 1, d.pagina, "mapa de páginas con sitio");
        return;
    }
    r.Exigir(!d.sistema, d.pagina, d.nombre + " no es una tabla del sistema");
}

} // namespace Revision_Mdb
