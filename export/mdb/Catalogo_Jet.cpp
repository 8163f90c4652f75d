#include "export/mdb/Catalogo_Jet.h"

#include "core/Error_Ejecucion.h"
#include "export/mdb/Tablas_Sistema.h"

#include <bit>

namespace Jet {

namespace {

enum Tipo_Objeto : quint16 { OBJ_TABLA = 1, OBJ_BASE = 2, OBJ_CARPETA = 3 };
constexpr quint32 BANDERA_SISTEMA = 0x80000000;

constexpr quint32 RAIZ = 0x0F000000;
constexpr quint32 CARPETA_TABLAS = 0x0F000001;
constexpr quint32 CARPETA_BASES = 0x0F000002;
constexpr quint32 CARPETA_RELACIONES = 0x0F000003;
constexpr quint32 BASE = 0x10000000;

struct Permiso {
    quint32 objeto;
    Cuenta cuenta;
    quint32 acm; // access mask
    bool heredable = false;
};
constexpr Permiso PERMISOS_SISTEMA[] = {
    {PAGINA_OBJETOS, Cuenta::ADMIN, 0x60000},
    {PAGINA_PERMISOS, Cuenta::ADMIN, 0x60000},
    {PAGINA_CONSULTAS, Cuenta::ADMIN, 0x60000},
    {PAGINA_RELACIONES, Cuenta::ADMIN, 0xE0000},
    {CARPETA_TABLAS, Cuenta::CREADOR, 0xF00FE, true},
    {CARPETA_TABLAS, Cuenta::ADMIN, 0x60001},
    {CARPETA_RELACIONES, Cuenta::CREADOR, 0xF00FE, true},
    {CARPETA_RELACIONES, Cuenta::ADMIN, 0x60001},
    {CARPETA_BASES, Cuenta::ADMIN, 0x60000},
    {BASE, Cuenta::ADMIN, 0x6000E},
    {BASE, Cuenta::USUARIOS, 0xE},
    {PAGINA_CONSULTAS, Cuenta::USUARIOS, 0x14},
    {PAGINA_RELACIONES, Cuenta::USUARIOS, 0x14},
    {PAGINA_OBJETOS, Cuenta::USUARIOS, 0x14},
    {CARPETA_TABLAS, Cuenta::USUARIOS, 0xFFEFF, true},
    {CARPETA_RELACIONES, Cuenta::USUARIOS, 0xFFFFF, true},
};
constexpr quint32 TABLA_ADMIN = 0xF00FE;
constexpr quint32 TABLA_USUARIOS = 0xFFEFF;
constexpr int PERMISOS_POR_TABLA = 2;

QByteArray Clave_Nombre(quint32 padre, const QString& nombre)
{
    return Hoja_Indice::Clave(padre) + Hoja_Indice::Clave(QStringView(nombre));
}

} // namespace

struct Catalogo::Objeto {
    quint32 id;
    quint32 padre;
    QString nombre;
    Tipo_Objeto tipo;
    Cuenta dueno;
    quint32 banderas;
};

Catalogo::Catalogo(Paginas& paginas, double fecha_)
    : salida(paginas), fecha(fecha_), cabecera(fecha_),
      objetos(PAGINA_OBJETOS, paginas, DATOS_OBJETOS),
      permisos(PAGINA_PERMISOS, paginas, DATOS_PERMISOS), propiedades_guardadas(paginas),
      registro_objeto(Objetos::COLUMNAS, Objetos::BYTES_FIJOS, Objetos::VARIABLES),
      registro_permiso(Permisos::COLUMNAS, Permisos::BYTES_FIJOS, Permisos::VARIABLES),
      por_nombre(PAGINA_OBJETOS), por_id(PAGINA_OBJETOS), por_objeto(PAGINA_PERMISOS)
{
    paginas.Reservar(PAGINAS_SISTEMA);
    const Objeto sistema[] = {
        {CARPETA_TABLAS, RAIZ, "Tables", OBJ_CARPETA, Cuenta::MOTOR, BANDERA_SISTEMA},
        {CARPETA_BASES, RAIZ, "Databases", OBJ_CARPETA, Cuenta::MOTOR, BANDERA_SISTEMA},
        {CARPETA_RELACIONES, RAIZ, "Relationships", OBJ_CARPETA, Cuenta::MOTOR, BANDERA_SISTEMA},
        {BASE, CARPETA_BASES, "MSysDb", OBJ_BASE, Cuenta::ADMIN, BANDERA_SISTEMA},
        {PAGINA_OBJETOS, CARPETA_TABLAS, "MSysObjects", OBJ_TABLA, Cuenta::MOTOR, BANDERA_SISTEMA},
        {PAGINA_PERMISOS, CARPETA_TABLAS, "MSysACEs", OBJ_TABLA, Cuenta::MOTOR, BANDERA_SISTEMA},
        {PAGINA_CONSULTAS, CARPETA_TABLAS, "MSysQueries", OBJ_TABLA, Cuenta::MOTOR,
         BANDERA_SISTEMA},
        {PAGINA_RELACIONES, CARPETA_TABLAS, "MSysRelationships", OBJ_TABLA, Cuenta::MOTOR,
         BANDERA_SISTEMA},
    };
    for (const Objeto& objeto : sistema)
        Anadir_Objeto(objeto);
    for (const Permiso& p : PERMISOS_SISTEMA)
        Anadir_Permiso(p.objeto, p.cuenta, p.acm, p.heredable);
}

void Catalogo::Comprobar_Sitio(const QString& tabla) const
{
    const QByteArray clave = Clave_Nombre(CARPETA_TABLAS, tabla);
    if (por_nombre.Contiene(clave)) throw Error_Ejecucion::Con(3010, u'\'' + tabla + u'\'');
    const qsizetype numero = Hoja_Indice::Largo(Hoja_Indice::Clave(CARPETA_TABLAS));
    if (!por_nombre.Cabe(Hoja_Indice::Largo(clave)) || !por_id.Cabe(numero) ||
        !por_objeto.Cabe(PERMISOS_POR_TABLA * numero))
        throw Error_Ejecucion(3014);
}

void Catalogo::Anadir_Tabla(quint32 id, const QString& nombre, const QByteArray& propiedades)
{
    Anadir_Objeto({id, CARPETA_TABLAS, nombre, OBJ_TABLA, Cuenta::ADMIN, 0},
                  propiedades.isEmpty() ? QByteArray()
                                        : propiedades_guardadas.Guardar(propiedades));
    Anadir_Permiso(id, Cuenta::ADMIN, TABLA_ADMIN, false);
    Anadir_Permiso(id, Cuenta::USUARIOS, TABLA_USUARIOS, false);
}

void Catalogo::Anadir_Objeto(const Objeto& objeto, const QByteArray& propiedades)
{
    Registro& r = registro_objeto;
    const auto fijo = [&r](const Columna_Sistema& c, auto valor) {
        r.Fijo(c.id, c.desplazamiento, valor);
    };
    r.Empezar();
    fijo(Objetos::ID, objeto.id);
    fijo(Objetos::PARENT_ID, objeto.padre);
    fijo(Objetos::TYPE, quint16(objeto.tipo));
    fijo(Objetos::DATE_CREATE, std::bit_cast<quint64>(fecha));
    fijo(Objetos::DATE_UPDATE, std::bit_cast<quint64>(fecha));
    fijo(Objetos::FLAGS, objeto.banderas);
    for (int variable = 0; variable < Objetos::VARIABLES; ++variable) {
        if (variable == Objetos::NAME.variable)
            r.Texto(Objetos::NAME.id, objeto.nombre, false);
        else if (variable == Objetos::OWNER.variable)
            r.Variable(Objetos::OWNER.id, cabecera.Sid(objeto.dueno));
        else if (variable == Objetos::LV_PROP.variable && !propiedades.isEmpty())
            r.Variable(Objetos::LV_PROP.id, propiedades);
        else
            r.Nulo();
    }
    const Filas::Lugar lugar = objetos.Anadir(r.Acabado());
    por_nombre.Anadir(Clave_Nombre(objeto.padre, objeto.nombre), lugar.pagina, lugar.fila);
    por_id.Anadir(Hoja_Indice::Clave(objeto.id), lugar.pagina, lugar.fila);
}

void Catalogo::Anadir_Permiso(quint32 objeto, Cuenta cuenta, quint32 acm, bool heredable)
{
    Registro& r = registro_permiso;
    r.Empezar();
    r.Fijo(Permisos::OBJECT_ID.id, Permisos::OBJECT_ID.desplazamiento, objeto);
    r.Fijo(Permisos::ACM.id, Permisos::ACM.desplazamiento, acm);
    r.Logico(Permisos::INHERITABLE.id, heredable);
    r.Variable(Permisos::SID.id, cabecera.Sid(cuenta));
    const Filas::Lugar lugar = permisos.Anadir(r.Acabado());
    por_objeto.Anadir(Hoja_Indice::Clave(objeto), lugar.pagina, lugar.fila);
}

void Catalogo::Acabar()
{
    objetos.Acabar();
    permisos.Acabar();
    propiedades_guardadas.Acabar();
    Escribir_Definiciones();
    Escribir_Mapas();
    const Hoja_Indice hojas[] = {por_nombre,
                                 por_id,
                                 por_objeto,
                                 Hoja_Indice(PAGINA_CONSULTAS),
                                 Hoja_Indice(PAGINA_RELACIONES),
                                 Hoja_Indice(PAGINA_RELACIONES),
                                 Hoja_Indice(PAGINA_RELACIONES)};
    quint32 pagina = HOJA_PADRE_NOMBRE;
    for (const Hoja_Indice& hoja : hojas)
        salida.Escribir(pagina++, hoja.Acabada());
    salida.Escribir(PAGINA_MAPA_GLOBAL, Pagina_Mapa_Global(salida));
    salida.Escribir(PAGINA_CABECERA, cabecera.Acabada());
}

void Catalogo::Escribir_Definiciones()
{
    for (const Pagina_Fija tabla :
         {PAGINA_OBJETOS, PAGINA_PERMISOS, PAGINA_CONSULTAS, PAGINA_RELACIONES}) {
        Definicion d = Definicion_Sistema(tabla);
        if (tabla == PAGINA_OBJETOS) {
            d.filas = objetos.Cuantas();
            d.indices[0].claves = por_nombre.Claves();
            d.indices[1].claves = por_id.Claves();
        } else if (tabla == PAGINA_PERMISOS) {
            d.filas = permisos.Cuantas();
            d.indices[0].claves = por_objeto.Claves();
        }
        Escribir_Definicion(d, {tabla}, salida);
    }
}

void Catalogo::Escribir_Mapas()
{
    QList<Mapa> mapas(MAPAS_SISTEMA);
    const auto con_libres = [&mapas](Fila_Mapa fila, const Mapa& propias, const Mapa& libres) {
        mapas[fila] = propias;
        mapas[fila + 1] = libres;
    };
    con_libres(MAPA_OBJETOS, objetos.Propias(), objetos.Libres());
    con_libres(MAPA_PERMISOS, permisos.Propias(), permisos.Libres());
    con_libres(MAPA_LV_PROP, propiedades_guardadas.Propias(), propiedades_guardadas.Libres());
    mapas[MAPA_PADRE_NOMBRE].Marcar(HOJA_PADRE_NOMBRE);
    mapas[MAPA_ID].Marcar(HOJA_ID);
    mapas[MAPA_PERMISOS_OBJETO].Marcar(HOJA_PERMISOS);
    mapas[MAPA_CONSULTAS_CLAVE].Marcar(HOJA_CONSULTAS);
    for (int k = 0; k < 3; ++k)
        mapas[MAPA_RELACIONES_INDICES + k].Marcar(HOJA_RELACIONES + static_cast<quint32>(k));
    salida.Escribir(PAGINA_MAPAS, Pagina_De_Mapas(mapas, salida));
}

} // namespace Jet
