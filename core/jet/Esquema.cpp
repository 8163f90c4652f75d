#include "core/jet/Esquema.h"

namespace {

using Esquema::Columna;
using Esquema::Indice;
using Esquema::Tabla;

constexpr int ANCHO_NOMBRE = 50;
constexpr int ANCHO_CODIGO = 20;
constexpr int ANCHO_LARGO = 255;

Columna Texto(const char16_t* nombre, int ancho)
{
    return {QString::fromUtf16(nombre), Esquema::Tipo::Texto, ancho};
}

Columna Memo(const char16_t* nombre)
{
    return {QString::fromUtf16(nombre), Esquema::Tipo::Memo, 0};
}

Columna Numero(const char16_t* nombre)
{
    return {QString::fromUtf16(nombre), Esquema::Tipo::Entero, 0};
}

Indice Clave(const QStringList& columnas)
{
    return {QStringLiteral("PrimaryKey"), columnas, true};
}

// The instruments' knowledge: delivered filled, never changed by the program.
QList<Tabla> Tablas_De_Referencia()
{
    return {
        {"KRT",
         {Texto(u"Nombre", ANCHO_NOMBRE), Texto(u"Clave", ANCHO_CODIGO),
          Texto(u"Foto", ANCHO_LARGO), Texto(u"Fotoini", ANCHO_LARGO),
          Texto(u"VelPuerto", ANCHO_LARGO), Texto(u"FormatoCoord", ANCHO_NOMBRE)},
         {Clave({"Nombre"})},
         {"Nombre"}},
        // One row a number, so that a session is listed once whatever the directions in which its
        // operation is offered; the direction stands in KRT2.
        {"OPE",
         {Numero(u"OPE"), Texto(u"DESOPE", ANCHO_NOMBRE)},
         {Clave({"OPE"}), {"DESOPE", {"DESOPE"}, true}},
         {"OPE"}},
        {"KRT2",
         {Texto(u"Nombre", ANCHO_CODIGO), Numero(u"OPE"), Texto(u"TipOpe", 1),
          Texto(u"DESOPE", ANCHO_NOMBRE), Texto(u"Conv", ANCHO_LARGO)},
         {Clave({"Nombre", "OPE", "TipOpe"})},
         {"Nombre", "OPE", "TipOpe"}},
        {"CONVERT",
         {Texto(u"Clave", ANCHO_CODIGO), Texto(u"descripcion", ANCHO_LARGO),
          Texto(u"ext", ANCHO_LARGO)},
         {Clave({"Clave"})},
         {"Clave"}},
        {"Identificadores",
         {Texto(u"Nombre", ANCHO_CODIGO), Numero(u"OPE"), Texto(u"ID", ANCHO_CODIGO),
          Texto(u"NomID", ANCHO_NOMBRE), Texto(u"tipo", ANCHO_CODIGO)},
         {Clave({"Nombre", "OPE", "ID"})},
         {"Nombre", "OPE", "ID"}},
        {"Campos",
         {Texto(u"Maquina", ANCHO_CODIGO), Texto(u"ID", ANCHO_CODIGO),
          Texto(u"Campo", ANCHO_NOMBRE), Numero(u"Orden"), Numero(u"Digitos"),
          Texto(u"PosDigit", ANCHO_CODIGO), Texto(u"Forsalida", ANCHO_NOMBRE),
          Texto(u"Especial", ANCHO_NOMBRE), Texto(u"Marcas", ANCHO_CODIGO),
          Texto(u"Caracter", ANCHO_CODIGO)},
         {{"MaqCam", {"Maquina", "Campo"}, false},
          {"MaqId", {"Maquina", "ID", "Orden"}, false, true}},
         {"Maquina", "ID", "Campo"}},
        {"Ayudas",
         {Texto(u"Maquina", ANCHO_NOMBRE), Numero(u"OPE"), Texto(u"TipOpe", 1), Numero(u"Sec"),
          Texto(u"Texto", ANCHO_LARGO), Texto(u"Foto", ANCHO_LARGO)},
         {{"MaqOpe", {"Maquina", "OPE", "TipOpe", "Sec"}, false, true}},
         {"Maquina", "OPE", "TipOpe", "Sec"}},
        {"TAB2",
         {Texto(u"TIPO", ANCHO_CODIGO), Numero(u"INDICE"), Texto(u"DESCRIPCION", ANCHO_LARGO)},
         {Clave({"TIPO", "INDICE"})},
         {"TIPO", "INDICE"}},
    };
}

// The user's sessions, formats and code libraries.
QList<Tabla> Tablas_De_Trabajo()
{
    return {
        {"Sesiones",
         {{"ID", Esquema::Tipo::Entero_16, 0},
          {"Fecha", Esquema::Tipo::Fecha, 0},
          Texto(u"NFichero", ANCHO_NOMBRE),
          Numero(u"OPE"),
          Texto(u"Maquina", ANCHO_CODIGO),
          Texto(u"MaqDes", ANCHO_NOMBRE),
          Numero(u"NPuntos")},
         {Clave({"ID"}), {"ID", {"ID"}, true}}},
        // Width 255 betrays an instrument set to a wrong output format: its lines don't fit.
        {"Registros",
         {Numero(u"ID"), Numero(u"Secuencia"), Texto(u"Punto", ANCHO_NOMBRE),
          Texto(u"Datos", ANCHO_LARGO), Memo(u"DatosG")},
         {{"Idx_Prim", {"ID", "Secuencia"}, false}}},
        {"Registros_Temp",
         {Numero(u"Secuencia"), Texto(u"Punto", ANCHO_NOMBRE), Texto(u"Datos", ANCHO_LARGO),
          Memo(u"DatosG")},
         {}},
        {"Formatos1",
         {Texto(u"Nombre", ANCHO_NOMBRE), Texto(u"Maquina", ANCHO_CODIGO),
          Texto(u"descripcion", ANCHO_LARGO), Texto(u"cabeceras", 2), Texto(u"Modificable", 2),
          Numero(u"ope"), Memo(u"Ids")},
         {Clave({"Nombre", "Maquina"})}},
        // The level's halves count `sec` each from 0, hence the field in the key.
        {"Formatos2",
         {Texto(u"Nombre", ANCHO_NOMBRE), Texto(u"Maquina", ANCHO_CODIGO), Numero(u"sec"),
          Texto(u"Campo", ANCHO_NOMBRE)},
         {Clave({"Nombre", "Maquina", "sec", "Campo"})}},
        {"Lib1",
         {Texto(u"CoD", ANCHO_CODIGO), Texto(u"Nombre", ANCHO_NOMBRE), Memo(u"Codigos")},
         {Clave({"CoD"})}},
        {"LIB800",
         {Texto(u"CodLibreria", ANCHO_CODIGO), Texto(u"descripcion", ANCHO_LARGO)},
         {Clave({"CodLibreria"})}},
        {"LIB800_2",
         {Texto(u"CodLibreria", ANCHO_CODIGO), Numero(u"SECUENCIA"), Texto(u"CODIGO", ANCHO_CODIGO),
          Numero(u"ENTIDAD"), Texto(u"CAPA", ANCHO_NOMBRE)},
         {Clave({"CodLibreria", "SECUENCIA"})}},
    };
}

// What the database knows of itself: the stamp of the delivered rows that it holds, and a sum of
// each of them, by which they are told from the user's own.
QList<Tabla> Tablas_De_La_Base()
{
    return {
        {"Propiedades",
         {Texto(u"Nombre", ANCHO_NOMBRE), Texto(u"Valor", ANCHO_LARGO)},
         {Clave({"Nombre"})},
         {},
         1},
        {"Entregadas", {Texto(u"Tabla", ANCHO_NOMBRE), Numero(u"Suma")}, {}, {}, 1},
    };
}

bool En_Indice(const Tabla& tabla, const QString& columna)
{
    for (const Indice& i : tabla.indices)
        if (!i.interno && i.columnas.contains(columna, Qt::CaseInsensitive)) return true;
    return false;
}

// The session number is the row number itself: the last row in table order is the highest number.
bool Es_Fila(const Columna& columna)
{
    return columna.tipo == Esquema::Tipo::Entero_16;
}

QString Definicion(const Tabla& tabla, const Columna& c)
{
    QString sql = c.nombre;
    const QString control = tabla.nombre + u'_' + c.nombre;
    switch (c.tipo) {
    case Esquema::Tipo::Texto:
        // The count of characters ends at a zero byte, that of bytes doesn't.
        sql += QStringLiteral(" TEXT CONSTRAINT %1%2 CHECK(length(%3)<=%4 AND "
                              "(length(CAST(%3 AS BLOB))<=%4 OR instr(%3,char(0))=0))")
                   .arg(QLatin1String(Esquema::PREFIJO_ANCHO), control, c.nombre)
                   .arg(c.ancho);
        break;
    case Esquema::Tipo::Memo:
        sql += QStringLiteral(" TEXT");
        break;
    case Esquema::Tipo::Fecha:
        sql += QStringLiteral(" TEXT CONSTRAINT %1%2 CHECK(%3)")
                   .arg(QLatin1String(Esquema::PREFIJO_FECHA), control, Esquema::Es_Fecha(c));
        break;
    case Esquema::Tipo::Entero:
        sql += QStringLiteral(" INTEGER");
        break;
    case Esquema::Tipo::Entero_16:
        sql += QStringLiteral(" INTEGER PRIMARY KEY CONSTRAINT %1%2 "
                              "CHECK(%3 BETWEEN -32768 AND 32767)")
                   .arg(QLatin1String(Esquema::PREFIJO_RANGO), control, c.nombre);
        break;
    }
    if (En_Indice(tabla, c.nombre)) sql += QStringLiteral(" NOT NULL");
    return sql;
}

} // namespace

const Esquema::Columna* Esquema::Tabla::Buscar_Columna(const QString& buscada) const
{
    for (const Columna& c : columnas)
        if (c.nombre.compare(buscada, Qt::CaseInsensitive) == 0) return &c;
    return nullptr;
}

const Esquema::Indice* Esquema::Tabla::Buscar_Indice(const QString& buscado) const
{
    for (const Indice& i : indices)
        if (!i.interno && i.nombre.compare(buscado, Qt::CaseInsensitive) == 0) return &i;
    return nullptr;
}

const QList<Esquema::Tabla>& Esquema::Tablas()
{
    static const QList<Tabla> tablas =
        Tablas_De_Referencia() + Tablas_De_Trabajo() + Tablas_De_La_Base();
    return tablas;
}

const Esquema::Tabla* Esquema::Buscar_Tabla(const QString& nombre)
{
    for (const Tabla& t : Tablas())
        if (t.nombre.compare(nombre, Qt::CaseInsensitive) == 0) return &t;
    return nullptr;
}

int Esquema::Ancho(const QString& tabla, const QString& columna)
{
    const Tabla* const t = Buscar_Tabla(tabla);
    const Columna* const c = t ? t->Buscar_Columna(columna) : nullptr;
    return c && c->tipo == Tipo::Texto ? c->ancho : 0;
}

QString Esquema::Es_Fecha(const Columna& columna)
{
    const QString cifra = QStringLiteral("[0-9]");
    const QString dibujo =
        QStringLiteral("%1-%2-%2 %2:%2:%2").arg(cifra.repeated(4), cifra.repeated(2));
    // Only a shifted moment is worked out anew, so that the 30th of February is none. The form
    // first: what else the date functions take for a moment ("now") is none that was stored.
    return QStringLiteral(
               "CASE WHEN %1 GLOB '%2' THEN strftime('%Y-%m-%d %H:%M:%S',%1,'+0 days') IS %1 "
               "ELSE %1 IS NULL END")
        .replace(QStringLiteral("%1"), columna.nombre)
        .replace(QStringLiteral("%2"), dibujo);
}

QStringList Esquema::Sentencias_De(const Tabla& t)
{
    QStringList columnas;
    for (const Columna& c : t.columnas)
        columnas << Definicion(t, c);
    // Strict: a number column holds numbers only, whoever writes it.
    QStringList sql{
        QStringLiteral("CREATE TABLE %1 (%2) STRICT").arg(t.nombre, columnas.join(u", "))};
    for (const Indice& i : t.indices) {
        if (Es_Fila(*t.Buscar_Columna(i.columnas[0]))) continue;
        sql << QStringLiteral("CREATE %1INDEX %2_%3 ON %2 (%4)")
                   .arg(QLatin1String(i.unico ? "UNIQUE " : ""), t.nombre, i.nombre,
                        i.columnas.join(u','));
    }
    return sql;
}

QStringList Esquema::Sentencias()
{
    QStringList sql;
    for (const Tabla& t : Tablas())
        sql += Sentencias_De(t);
    return sql;
}
