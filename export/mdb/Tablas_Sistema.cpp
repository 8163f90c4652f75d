#include "export/mdb/Tablas_Sistema.h"

#include <span>

namespace Jet {

namespace {

using enum Tipo;

constexpr Columna_Sistema OBJETOS[] = {
    {u"Connect", MEMO, 9, 3, 0, 0, SIS_VARIABLE},
    {u"Database", MEMO, 8, 2, 0, 0, SIS_VARIABLE},
    Objetos::DATE_CREATE,
    Objetos::DATE_UPDATE,
    Objetos::FLAGS,
    {u"ForeignName", TEXTO, 10, 4, 0, LARGO_NOMBRES, SIS_VARIABLE},
    Objetos::ID,
    {u"Lv", OLE, 13, 7, 0, 0, SIS_VARIABLE},
    {u"LvExtra", OLE, 16, 10, 0, 0, SIS_VARIABLE},
    {u"LvModule", OLE, 15, 9, 0, 0, SIS_VARIABLE},
    Objetos::LV_PROP,
    Objetos::NAME,
    Objetos::OWNER,
    Objetos::PARENT_ID,
    {u"RmtInfoLong", OLE, 12, 6, 0, 0, SIS_VARIABLE},
    {u"RmtInfoShort", BINARIO, 11, 5, 0, LARGO_NOMBRES, SIS_VARIABLE},
    Objetos::TYPE,
};

constexpr Columna_Sistema PERMISOS[] = {
    Permisos::ACM,
    Permisos::INHERITABLE,
    Permisos::OBJECT_ID,
    Permisos::SID,
};

constexpr Columna_Sistema CONSULTAS[] = {
    {u"Attribute", OCTETO, 1, 0, 4, 1, SIS_FIJA},
    {u"Expression", MEMO, 5, 3, 0, 0, SIS_VARIABLE},
    {u"Flag", ENTERO, 6, 4, 5, 2, SIS_FIJA},
    {u"LvExtra", LARGO, 7, 4, 7, 4, SIS_FIJA},
    {u"Name1", TEXTO, 3, 1, 0, LARGO_NOMBRES, SIS_VARIABLE},
    {u"Name2", TEXTO, 4, 2, 0, LARGO_NOMBRES, SIS_VARIABLE},
    {u"ObjectId", LARGO, 0, 0, 0, 4, SIS_FIJA},
    {u"Order", BINARIO, 2, 0, 0, LARGO_NOMBRES, SIS_VARIABLE},
};

constexpr Columna_Sistema RELACIONES[] = {
    {u"ccolumn", LARGO, 2, 1, 4, 4, SIS_FIJA},
    {u"grbit", LARGO, 1, 1, 0, 4, SIS_FIJA},
    {u"icolumn", LARGO, 3, 1, 8, 4, SIS_FIJA},
    {u"szColumn", TEXTO, 5, 2, 0, LARGO_NOMBRES, SIS_VARIABLE},
    {u"szObject", TEXTO, 4, 1, 0, LARGO_NOMBRES, SIS_VARIABLE},
    {u"szReferencedColumn", TEXTO, 7, 4, 0, LARGO_NOMBRES, SIS_VARIABLE},
    {u"szReferencedObject", TEXTO, 6, 3, 0, LARGO_NOMBRES, SIS_VARIABLE},
    {u"szRelationship", TEXTO, 0, 0, 0, LARGO_NOMBRES, SIS_VARIABLE},
};

constexpr quint16 CLAVE_UNICA = IND_SIEMPRE | IND_UNICO;
constexpr quint16 CLAVE_OBLIGADA = IND_SIEMPRE | IND_OBLIGADO;
constexpr quint16 CLAVE_SIN_NULOS = IND_SIEMPRE | IND_SIN_NULOS;

quint32 En_Mapas(int fila)
{
    return Puntero(PAGINA_MAPAS, static_cast<quint32>(fila));
}

Definicion Con_Columnas(std::span<const Columna_Sistema> columnas, Fila_Mapa mapa)
{
    Definicion d;
    d.clase = Clase_Tabla::SISTEMA;
    d.propias = En_Mapas(mapa);
    d.libres = En_Mapas(mapa + 1);
    for (const Columna_Sistema& c : columnas)
        d.columnas.append({.nombre = QString::fromUtf16(c.nombre),
                           .tipo = c.tipo,
                           .id = c.id,
                           .variable = c.variable,
                           .desplazamiento = c.desplazamiento,
                           .largo = c.largo,
                           .banderas = c.banderas});
    return d;
}

Columna_Larga Larga(quint16 id, Fila_Mapa mapa)
{
    return {id, En_Mapas(mapa), En_Mapas(mapa + 1)};
}

Definicion Definir_Objetos()
{
    Definicion d = Con_Columnas(OBJETOS, MAPA_OBJETOS);
    d.indices = {{{Objetos::PARENT_ID.id, Objetos::NAME.id},
                  En_Mapas(MAPA_PADRE_NOMBRE),
                  HOJA_PADRE_NOMBRE,
                  CLAVE_UNICA},
                 {{Objetos::ID.id}, En_Mapas(MAPA_ID), HOJA_ID, CLAVE_UNICA}};
    d.nombres = {{"Id", 1, 1, true}, {"ParentIdName", 0, 0, false}};
    d.largas = {Larga(9, MAPA_CONNECT),       Larga(8, MAPA_DATABASE),
                Larga(13, MAPA_LV),           Larga(16, MAPA_LV_EXTRA),
                Larga(15, MAPA_LV_MODULE),    Larga(Objetos::LV_PROP.id, MAPA_LV_PROP),
                Larga(12, MAPA_RMT_INFO_LONG)};
    return d;
}

Definicion Definir_Permisos()
{
    Definicion d = Con_Columnas(PERMISOS, MAPA_PERMISOS);
    d.indices = {
        {{Permisos::OBJECT_ID.id}, En_Mapas(MAPA_PERMISOS_OBJETO), HOJA_PERMISOS, CLAVE_OBLIGADA}};
    d.nombres = {{"ObjectId", 0, 0, false}};
    return d;
}

Definicion Definir_Consultas()
{
    Definicion d = Con_Columnas(CONSULTAS, MAPA_CONSULTAS);
    d.indices = {{{0, 1, 2}, En_Mapas(MAPA_CONSULTAS_CLAVE), HOJA_CONSULTAS, CLAVE_UNICA}};
    d.nombres = {{"ObjectIdAttribute", 0, 0, true}};
    d.largas = {Larga(5, MAPA_EXPRESSION)};
    return d;
}

Definicion Definir_Relaciones()
{
    Definicion d = Con_Columnas(RELACIONES, MAPA_RELACIONES);
    for (const quint16 columna : {quint16(0), quint16(4), quint16(6)}) {
        const auto k = static_cast<int>(d.indices.size());
        d.indices.append({{columna},
                          En_Mapas(MAPA_RELACIONES_INDICES + k),
                          HOJA_RELACIONES + static_cast<quint32>(k),
                          CLAVE_SIN_NULOS});
    }
    d.nombres = {{"szObject", 1, 1, false},
                 {"szReferencedObject", 2, 2, false},
                 {"szRelationship", 0, 0, false}};
    return d;
}

} // namespace

Definicion Definicion_Sistema(Pagina_Fija tabla)
{
    switch (tabla) {
    case PAGINA_OBJETOS:
        return Definir_Objetos();
    case PAGINA_PERMISOS:
        return Definir_Permisos();
    case PAGINA_CONSULTAS:
        return Definir_Consultas();
    default:
        return Definir_Relaciones();
    }
}

} // namespace Jet
