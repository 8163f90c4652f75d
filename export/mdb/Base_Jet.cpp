#include "export/mdb/Base_Jet.h"

#include "core/Ansi.h"
#include "core/Error_Ejecucion.h"
#include "core/Ficheros.h"
#include "core/Reloj.h"
#include "export/mdb/Catalogo_Jet.h"
#include "export/mdb/Definicion_Jet.h"
#include "export/mdb/Orden_Jet.h"
#include "export/mdb/Texto_Jet.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QVarLengthArray>

#include <set>

namespace {

constexpr int TAMANO_MAXIMO = 255; // characters of a text column
constexpr int BYTES_POR_CARACTER = 2;

constexpr double PRIMERA_FECHA = 2;      // 1-1-1900
constexpr double ULTIMA_FECHA = 2958466; // 1-1-10000

// Longest file name, the suffix of the temporary beside it left free.
constexpr qsizetype LARGO_FICHERO = 240;

Error_Ejecucion Error_Con(int numero, const QString& que)
{
    return Error_Ejecucion::Con(numero, u'\'' + que + u'\'');
}

void Comprobar_Localizacion(const QString& localizacion)
{
    for (const QString& parte : localizacion.split(u';', Qt::SkipEmptyParts)) {
        const QString clave = parte.section(u'=', 0, 0).trimmed().toUpper();
        const int valor = parte.section(u'=', 1).trimmed().toInt(nullptr, 0);
        const bool conocida = (clave == u"LANGID" && valor == 0x0409) ||
                              (clave == u"CP" && valor == 1252) ||
                              (clave == u"COUNTRY" && valor == 0);
        if (!conocida) throw Error_Con(3001, parte);
    }
}

double Fecha_De(const Ajustes_Jet& ajustes)
{
    const double fecha = ajustes.fecha.value_or(Base_Jet::Fecha(Reloj_Actual().Ahora()));
    if (!(fecha >= PRIMERA_FECHA && fecha < ULTIMA_FECHA)) throw Error_Ejecucion(3001);
    return fecha;
}

// Names that Windows refuses are refused everywhere: the file is made to be handed on.
bool Es_Nombre_De_Fichero(const QString& nombre)
{
    static const QString prohibidos = QStringLiteral("*?\"<>|");
    return !nombre.isEmpty() && QFile::encodeName(nombre).size() <= LARGO_FICHERO &&
           std::none_of(nombre.begin(), nombre.end(),
                        [](QChar c) { return c.unicode() < u' ' || prohibidos.contains(c); });
}

void Comprobar_Destino(const QString& fichero, const Ajustes_Jet& ajustes)
{
    const QFileInfo donde(fichero);
    Ficheros::Comprobar_Destino(fichero);
    if (!Es_Nombre_De_Fichero(donde.fileName())) throw Error_Con(3055, fichero);
    if (!donde.absoluteDir().exists()) throw Error_Con(3044, fichero);
    if (donde.exists() && ajustes.si_existe == Ajustes_Jet::RECHAZAR)
        throw Error_Con(3204, fichero);
}

void Comprobar_Columnas(const QList<Columna_Texto>& columnas)
{
    if (columnas.isEmpty()) throw Error_Ejecucion(3264);
    if (columnas.size() > Jet::COLUMNAS_MAXIMAS) throw Error_Ejecucion(3190);
    std::set<QByteArray> vistas;
    for (const Columna_Texto& c : columnas) {
        Jet::Comprobar_Nombre(c.nombre);
        if (c.tamano < 1 || c.tamano > TAMANO_MAXIMO) throw Error_Con(3001, c.nombre);
        if (!vistas.insert(Jet::Pesos_Nombre(c.nombre)).second) throw Error_Con(3191, c.nombre);
    }
}

Jet::Definicion Definir(const QList<Columna_Texto>& columnas)
{
    Jet::Definicion d;
    d.clase = Jet::Clase_Tabla::USUARIO;
    for (const Columna_Texto& c : columnas) {
        const auto id = static_cast<quint16>(d.columnas.size());
        const quint8 ampliadas = c.comprimida ? Jet::COL_COMPRIMIDA : 0;
        d.columnas.append({.nombre = c.nombre,
                           .tipo = Jet::Tipo::TEXTO,
                           .id = id,
                           .variable = id,
                           .desplazamiento = 0,
                           .largo = static_cast<quint16>(BYTES_POR_CARACTER * c.tamano),
                           .banderas = Jet::COL_SIEMPRE,
                           .ampliadas = ampliadas,
                           .ordinal = id});
    }
    return d;
}

} // namespace

/// The table that is open for rows.
struct Base_Jet::Tabla {
    Tabla(const QList<Columna_Texto>& columnas_, Jet::Paginas& paginas)
        : columnas(columnas_), definicion(Definir(columnas_)), numeros{paginas.Reservar()},
          mapas(paginas.Reservar()), filas(numeros.first(), paginas),
          registro(static_cast<int>(columnas.size()), 0, static_cast<int>(columnas.size()))
    {
        definicion.propias = Jet::Puntero(mapas, 0);
        definicion.libres = Jet::Puntero(mapas, 1);
    }

    QByteArray Propiedades() const;
    void Reservar_Resto(Jet::Paginas& paginas);
    QByteArrayView Registrar(std::span<const Celda_Jet> celdas);
    void Acabar(Jet::Paginas& paginas);

    QList<Columna_Texto> columnas;
    Jet::Definicion definicion;
    QList<quint32> numeros; // pages of the definition
    quint32 mapas;          // page of its two maps
    Jet::Filas filas;
    Jet::Registro registro;
};

QByteArray Base_Jet::Tabla::Propiedades() const
{
    QStringList con_vacio;
    for (const Columna_Texto& c : columnas)
        if (c.admite_vacio) con_vacio << c.nombre;
    return Jet::Propiedades(con_vacio);
}

// Further pages of the definition stand behind those of the properties, as the engine lays them.
void Base_Jet::Tabla::Reservar_Resto(Jet::Paginas& paginas)
{
    for (quint32 k = Jet::Paginas_De(definicion); k > 1; --k)
        numeros << paginas.Reservar();
}

QByteArrayView Base_Jet::Tabla::Registrar(std::span<const Celda_Jet> celdas)
{
    if (qsizetype(celdas.size()) != columnas.size()) throw Error_Ejecucion(3265);
    const Columna_Texto* columna = columnas.constData();
    for (const Celda_Jet& celda : celdas) {
        const Columna_Texto& c = *columna++;
        if (!celda) continue;
        if (celda->size() > c.tamano) throw Error_Ejecucion(3163);
        if (celda->isEmpty() && !c.admite_vacio) throw Error_Ejecucion(3315);
    }
    registro.Empezar();
    columna = columnas.constData();
    for (int id = 0; const Celda_Jet& celda : celdas) {
        if (celda)
            registro.Texto(id, *celda, columna->comprimida);
        else
            registro.Nulo();
        ++columna;
        ++id;
    }
    return registro.Acabado();
}

void Base_Jet::Tabla::Acabar(Jet::Paginas& paginas)
{
    filas.Acabar();
    definicion.filas = filas.Cuantas();
    paginas.Escribir(mapas, Jet::Pagina_De_Mapas({filas.Propias(), filas.Libres()}, paginas));
    Jet::Escribir_Definicion(definicion, numeros, paginas);
}

/// The database under way.
struct Base_Jet::Obra {
    Obra(QIODevice& destino, const Ajustes_Jet& ajustes)
        : paginas(destino), catalogo(paginas, Fecha_De(ajustes))
    {
        Comprobar_Localizacion(ajustes.localizacion);
    }

    // A failed write leaves the file in pieces: from then on there is only that failure.
    template <class Accion> void Con_Disco(Accion accion)
    {
        if (fallo) throw *fallo;
        try {
            accion();
        } catch (...) {
            fallo = Error_En_Curso();
            throw;
        }
    }

    std::unique_ptr<QSaveFile> fichero; // none when the device is the caller's
    bool reemplazar = true;
    Jet::Paginas paginas;
    Jet::Catalogo catalogo;
    std::optional<Tabla> tabla;
    std::optional<Error_Ejecucion> fallo;
};

Base_Jet::Base_Jet(const QString& nombre, const Ajustes_Jet& ajustes)
{
    Comprobar_Destino(nombre, ajustes);
    auto fichero = std::make_unique<QSaveFile>(nombre);
    if (!fichero->open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw Error_Con(70, QStringLiteral("%1 (%2)").arg(nombre, fichero->errorString()));
    obra = std::make_unique<Obra>(*fichero, ajustes);
    obra->fichero = std::move(fichero);
    obra->reemplazar = ajustes.si_existe == Ajustes_Jet::REEMPLAZAR;
}

Base_Jet::Base_Jet(QIODevice& destino, const Ajustes_Jet& ajustes)
    : obra(std::make_unique<Obra>(destino, ajustes))
{
}

Base_Jet::~Base_Jet() = default;

void Base_Jet::Crear_Tabla(const QString& nombre, const QList<Columna_Texto>& columnas)
{
    if (!obra) throw Error_Ejecucion(3420);
    Jet::Comprobar_Nombre(nombre);
    if (!Ansi::Cabe(nombre)) throw Error_Con(3125, nombre);
    Comprobar_Columnas(columnas);
    obra->catalogo.Comprobar_Sitio(nombre);
    obra->Con_Disco([&] {
        if (obra->tabla) obra->tabla->Acabar(obra->paginas);
        Tabla& tabla = obra->tabla.emplace(columnas, obra->paginas);
        obra->catalogo.Anadir_Tabla(tabla.numeros.first(), nombre, tabla.Propiedades());
        tabla.Reservar_Resto(obra->paginas);
    });
}

void Base_Jet::Anadir_Fila(const QStringList& celdas)
{
    QVarLengthArray<Celda_Jet, Jet::COLUMNAS_MAXIMAS> fila;
    for (const QString& celda : celdas)
        fila.append(QStringView(celda));
    Anadir_Fila(
        std::span<const Celda_Jet>(fila.constData(), static_cast<std::size_t>(fila.size())));
}

void Base_Jet::Anadir_Fila(std::span<const Celda_Jet> celdas)
{
    if (!obra || !obra->tabla) throw Error_Ejecucion(3420);
    const QByteArrayView registro = obra->tabla->Registrar(celdas);
    obra->Con_Disco([&] { obra->tabla->filas.Anadir(registro); });
}

qint64 Base_Jet::Filas() const
{
    return obra && obra->tabla ? obra->tabla->filas.Cuantas() : 0;
}

void Base_Jet::Cerrar()
{
    if (!obra) throw Error_Ejecucion(3420);
    obra->Con_Disco([this] {
        if (obra->tabla) obra->tabla->Acabar(obra->paginas);
        obra->tabla.reset();
        obra->catalogo.Acabar();
        obra->paginas.Vaciar();
        if (!obra->fichero) return;
        if (!obra->reemplazar && QFileInfo::exists(obra->fichero->fileName()))
            throw Error_Con(3204, obra->fichero->fileName());
        if (!obra->fichero->commit()) throw Jet::Fallo_De(*obra->fichero);
    });
    obra.reset();
}

double Base_Jet::Fecha(const QDateTime& fecha)
{
    static const QDate origen(1899, 12, 30);
    constexpr double MILISEGUNDOS_DIA = 86400000;
    return double(origen.daysTo(fecha.date())) +
           fecha.time().msecsSinceStartOfDay() / MILISEGUNDOS_DIA;
}
