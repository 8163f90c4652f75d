#include "tools/revisar_mdb/Catalogo.h"

#include "tools/revisar_mdb/Esquema.h"
#include "tools/revisar_mdb/Indices.h"
#include "tools/revisar_mdb/Mapas.h"
#include "tools/revisar_mdb/Propiedades.h"

#include <algorithm>

namespace Revision_Mdb {

namespace {

constexpr quint32 TABLA = 1;
constexpr quint32 MSYS_OBJECTS = 2, MSYS_ACES = 3, MSYS_QUERIES = 4, MSYS_RELATIONSHIPS = 5;
constexpr quint32 CARPETA_TABLAS = 0x0F000001;

// Objects of every database: Id, ParentId, Type, Flags, owner and name.
constexpr const char* OBJETOS[] = {
    "F000001 F000000 3 80000000 Engine Tables",
    "F000002 F000000 3 80000000 Engine Databases",
    "F000003 F000000 3 80000000 Engine Relationships",
    "10000000 F000002 2 80000000 Admin MSysDb",
    "2 F000001 1 80000000 Engine MSysObjects",
    "3 F000001 1 80000000 Engine MSysACEs",
    "4 F000001 1 80000000 Engine MSysQueries",
    "5 F000001 1 80000000 Engine MSysRelationships",
};

// Their rights: ObjectId, account, ACM and whether children inherit it.
constexpr const char* PERMISOS[] = {
    "2 Admin 60000 no",
    "3 Admin 60000 no",
    "4 Admin 60000 no",
    "5 Admin E0000 no",
    "F000001 Creator F00FE si",
    "F000001 Admin 60001 no",
    "F000003 Creator F00FE si",
    "F000003 Admin 60001 no",
    "F000002 Admin 60000 no",
    "10000000 Admin 6000E no",
    "10000000 Users E no",
    "4 Users 14 no",
    "5 Users 14 no",
    "2 Users 14 no",
    "F000001 Users FFEFF si",
    "F000003 Users FFFFF si",
};
constexpr const char* PERMISOS_DE_TABLA[] = {"%1 Admin F00FE no", "%1 Users FFEFF no"};

QString Hexa(quint32 valor)
{
    return QString::number(valor, 16).toUpper();
}

struct Objeto {
    quint32 id = 0;
    QString nombre;
    QString descripcion; // as in OBJETOS
    quint32 pagina = 0;
    bool de_usuario = false;
    std::optional<Bytes> propiedades;
};

/// Values of a row by the names of their columns.
class Lector {
public:
    Lector(const Definicion& d, const Registro& r) : tabla(d), registro(r) {}
    std::optional<Bytes> Opcional(const char* columna) const
    {
        const Columna* c = tabla.Por_Nombre(QLatin1String(columna));
        if (!c) throw Rotura{QStringLiteral("falta la columna ") + QLatin1String(columna)};
        return registro[c->id];
    }
    Bytes operator[](const char* columna) const
    {
        const std::optional<Bytes> valor = Opcional(columna);
        if (!valor) throw Rotura{QStringLiteral("nulo en ") + QLatin1String(columna)};
        return *valor;
    }

private:
    const Definicion& tabla;
    const Registro& registro;
};

Objeto Leer_Objeto(Revision& r, const Definicion& tabla, const Registro& registro, quint32 pagina,
                   const Cabecera& cabecera)
{
    const Lector valor(tabla, registro);
    Objeto o;
    o.pagina = pagina;
    o.id = valor["Id"].U32(0);
    o.nombre = valor["Name"].Utf16();
    const quint32 padre = valor["ParentId"].U32(0);
    const quint16 tipo = valor["Type"].U16(0);
    const quint32 banderas = valor["Flags"].U32(0);
    const QString dueno = cabecera.Cuenta(valor["Owner"].Vista());
    r.Exigir(!dueno.isEmpty(), pagina, o.nombre + ": dueño de ninguna cuenta");
    for (const char* fecha : {"DateCreate", "DateUpdate"})
        r.Exigir(valor[fecha] == cabecera.fecha, pagina, o.nombre + ": otra fecha que el fichero");
    for (const char* nula : {"Connect", "Database", "ForeignName", "Lv", "LvExtra", "LvModule",
                             "RmtInfoLong", "RmtInfoShort"})
        r.Exigir(!valor.Opcional(nula), pagina, o.nombre + ": valor en " + QLatin1String(nula));
    o.descripcion = QStringLiteral("%1 %2 %3 %4 %5 %6")
                        .arg(Hexa(o.id), Hexa(padre))
                        .arg(tipo)
                        .arg(Hexa(banderas), dueno, o.nombre);
    o.de_usuario = tipo == TABLA && padre == CARPETA_TABLAS && banderas == 0 && dueno == u"Admin";
    o.propiedades = valor.Opcional("LvProp");
    return o;
}

// An indexed name: one byte a character in Windows-1252.
bool Esta_En_La_Pagina(const QString& nombre)
{
    static const QString altos = QStringLiteral("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ");
    return std::all_of(nombre.begin(), nombre.end(),
                       [](QChar c) { return c.unicode() <= 0xFF || altos.contains(c); });
}

void Revisar_Objetos(Revision& r, const QList<Objeto>& objetos)
{
    QStringList faltan;
    for (const char* fijo : OBJETOS)
        faltan << QLatin1String(fijo);
    QStringList nombres;
    for (const Objeto& o : objetos) {
        Revisar_Nombre(r, o.pagina, o.nombre);
        r.Exigir(Esta_En_La_Pagina(o.nombre), o.pagina, "nombre fuera de la página 1252");
        r.Exigir(!nombres.contains(o.nombre, Qt::CaseInsensitive), o.pagina,
                 "objeto repetido: " + o.nombre);
        nombres << o.nombre;
        const bool fijo = faltan.removeOne(o.descripcion);
        r.Exigir(fijo || o.de_usuario, o.pagina, "objeto que no se espera: " + o.descripcion);
        r.Exigir(!fijo || !o.propiedades, o.pagina, o.nombre + ": propiedades que no se esperan");
    }
    for (const QString& f : faltan)
        r.Queja(MSYS_OBJECTS, "falta el objeto " + f);
}

void Revisar_Permisos(Revision& r, QStringList hay, const QList<Objeto>& objetos)
{
    QStringList debe;
    for (const char* fijo : PERMISOS)
        debe << QLatin1String(fijo);
    for (const Objeto& o : objetos)
        for (const char* permiso : PERMISOS_DE_TABLA)
            if (o.de_usuario) debe << QString::fromLatin1(permiso).arg(Hexa(o.id));
    for (const QString& p : debe)
        r.Exigir(hay.removeOne(p), MSYS_ACES, "falta el permiso " + p);
    for (const QString& p : hay)
        r.Queja(MSYS_ACES, "permiso que no se espera: " + p);
}

// Reads a system table's rows, hands them to `cada` and compares its indexes with them.
template <class Cada> void Revisar_Tabla(Revision& r, const Definicion& tabla, Cada cada)
{
    QList<Fila_Indexada> filas;
    Revisar_Filas(r, tabla, [&](const Registro& registro, quint32 pagina, quint32 fila) {
        filas.append({registro, pagina, fila});
        cada(registro, pagina);
    });
    Revisar_Indices_De(r, tabla, filas);
}

// Long columns of the system tables hold nothing, but for the properties.
void Revisar_Largas(Revision& r, const Definicion& tabla, const QList<Propiedades_De>& valores)
{
    for (const Columna_Larga& larga : tabla.largas)
        r.Paso_Sobre(tabla.pagina, [&] {
            const Mapa propias = Leer_Mapa(r, Puntero(larga.propias));
            const Mapa libres = Leer_Mapa(r, Puntero(larga.libres));
            const Columna* columna = tabla.Por_Id(larga.id);
            const bool propiedades = columna && columna->nombre == u"LvProp";
            Revisar_Propiedades(r, propiedades ? valores : QList<Propiedades_De>{}, propias,
                                libres);
        });
}

} // namespace

Catalogo Revisar_Catalogo(Revision& r, const Cabecera& cabecera)
{
    Catalogo catalogo;
    for (const auto& [pagina, nombre] : {std::pair{MSYS_OBJECTS, "MSysObjects"},
                                         {MSYS_ACES, "MSysACEs"},
                                         {MSYS_QUERIES, "MSysQueries"},
                                         {MSYS_RELATIONSHIPS, "MSysRelationships"}}) {
        catalogo.sistema << Leer_Definicion(r, pagina, QLatin1String(nombre));
        Revisar_Esquema(r, catalogo.sistema.last());
    }
    const QList<Definicion>& sistema = catalogo.sistema;

    QList<Objeto> objetos;
    Revisar_Tabla(r, sistema[0], [&](const Registro& registro, quint32 pagina) {
        objetos << Leer_Objeto(r, sistema[0], registro, pagina, cabecera);
    });
    Revisar_Objetos(r, objetos);

    QStringList permisos;
    Revisar_Tabla(r, sistema[1], [&](const Registro& registro, quint32) {
        const Lector valor(sistema[1], registro);
        permisos << QStringLiteral("%1 %2 %3 %4")
                        .arg(Hexa(valor["ObjectId"].U32(0)), cabecera.Cuenta(valor["SID"].Vista()),
                             Hexa(valor["ACM"].U32(0)),
                             valor.Opcional("FInheritable") ? "si" : "no");
    });
    Revisar_Permisos(r, permisos, objetos);
    for (const Definicion& vacia : {sistema[2], sistema[3]})
        Revisar_Tabla(r, vacia, [](const Registro&, quint32) {});

    catalogo.tablas.reserve(objetos.size());
    QList<Propiedades_De> propiedades;
    for (const Objeto& o : objetos) {
        if (!o.de_usuario) continue;
        r.Paso_Sobre(o.id, [&] {
            catalogo.tablas << Leer_Definicion(r, o.id, o.nombre);
            Revisar_Esquema(r, catalogo.tablas.last());
            if (o.propiedades) propiedades.append({&catalogo.tablas.last(), *o.propiedades});
        });
    }
    for (const Definicion& d : sistema)
        Revisar_Largas(r, d, propiedades);
    return catalogo;
}

} // namespace Revision_Mdb
