#pragma once

#include "export/mdb/Cabecera_Jet.h"
#include "export/mdb/Definicion_Jet.h"

/// The four tables that describe the database, and where their parts stand.
namespace Jet {

/// Pages of fixed place behind the definitions and their maps.
enum Pagina_Sistema : quint32 {
    HOJA_PADRE_NOMBRE = 7,
    HOJA_ID = 8,
    HOJA_PERMISOS = 9,
    HOJA_CONSULTAS = 10,
    HOJA_RELACIONES = 11, ///< and the two behind it
    DATOS_OBJETOS = 14,
    DATOS_PERMISOS = 15,
    PAGINAS_SISTEMA = 16
};

/// Rows of the page of maps; those of the indexes aside, behind each one stands that of the pages
/// with room.
enum Fila_Mapa : int {
    MAPA_OBJETOS = 0,
    MAPA_DATABASE = 2,
    MAPA_CONNECT = 4,
    MAPA_RMT_INFO_LONG = 6,
    MAPA_LV = 8,
    MAPA_LV_PROP = 10,
    MAPA_LV_MODULE = 12,
    MAPA_LV_EXTRA = 14,
    MAPA_PADRE_NOMBRE = 16,
    MAPA_ID = 17,
    MAPA_PERMISOS = 18,
    MAPA_PERMISOS_OBJETO = 20,
    MAPA_CONSULTAS = 21,
    MAPA_EXPRESSION = 23,
    MAPA_CONSULTAS_CLAVE = 25,
    MAPA_RELACIONES = 26,
    MAPA_RELACIONES_INDICES = 28, ///< and the two behind it
    MAPAS_SISTEMA = 31
};

struct Columna_Sistema {
    const char16_t* nombre;
    Tipo tipo;
    quint16 id;
    quint16 variable;
    quint16 desplazamiento;
    quint16 largo;
    quint8 banderas;
};

constexpr quint8 SIS_VARIABLE = COL_SISTEMA | COL_SIEMPRE;
constexpr quint8 SIS_FIJA = SIS_VARIABLE | COL_FIJA;
constexpr quint8 SIS_SID = SIS_VARIABLE | COL_SID;
constexpr quint16 LARGO_NOMBRES = 510; // bytes of the system's text and binary columns

/// Columns of MSysObjects that its rows fill.
namespace Objetos {
constexpr Columna_Sistema ID{u"Id", Tipo::LARGO, 0, 0, 0, 4, SIS_FIJA};
constexpr Columna_Sistema PARENT_ID{u"ParentId", Tipo::LARGO, 1, 0, 4, 4, SIS_FIJA};
constexpr Columna_Sistema NAME{u"Name", Tipo::TEXTO, 2, 0, 0, LARGO_NOMBRES, SIS_VARIABLE};
constexpr Columna_Sistema TYPE{u"Type", Tipo::ENTERO, 3, 1, 8, 2, SIS_FIJA};
constexpr Columna_Sistema DATE_CREATE{u"DateCreate", Tipo::FECHA, 4, 1, 10, 8, SIS_FIJA};
constexpr Columna_Sistema DATE_UPDATE{u"DateUpdate", Tipo::FECHA, 5, 1, 18, 8, SIS_FIJA};
constexpr Columna_Sistema OWNER{u"Owner", Tipo::BINARIO, 6, 1, 0, LARGO_NOMBRES, SIS_SID};
constexpr Columna_Sistema FLAGS{u"Flags", Tipo::LARGO, 7, 2, 26, 4, SIS_FIJA};
constexpr Columna_Sistema LV_PROP{u"LvProp", Tipo::OLE, 14, 8, 0, 0, SIS_VARIABLE};
constexpr int COLUMNAS = 17;
constexpr int BYTES_FIJOS = 30;
constexpr int VARIABLES = 11;
} // namespace Objetos

/// Columns of MSysACEs.
namespace Permisos {
constexpr Columna_Sistema OBJECT_ID{u"ObjectId", Tipo::LARGO, 0, 0, 0, 4, SIS_FIJA};
constexpr Columna_Sistema SID{u"SID", Tipo::BINARIO, 1, 0, 0, LARGO_NOMBRES, SIS_SID};
constexpr Columna_Sistema ACM{u"ACM", Tipo::LARGO, 2, 1, 4, 4, SIS_FIJA};
constexpr Columna_Sistema INHERITABLE{u"FInheritable", Tipo::LOGICO, 3, 1, 0, 1, SIS_FIJA};
constexpr int COLUMNAS = 4;
constexpr int BYTES_FIJOS = 8;
constexpr int VARIABLES = 1;
} // namespace Permisos

/// The definition of the system table on page `tabla`, without rows.
Definicion Definicion_Sistema(Pagina_Fija tabla);

} // namespace Jet
