#include "app/cli/Ordenes_Conversion.h"
#include "conversions/Conversion.h"
#include "conversions/Lectores_LandXML.h"

#include <QFileInfo>

namespace {

constexpr const char* ALINEACION = "alineacion";
constexpr const char* RASANTE = "rasante";
constexpr const char* TRANSVERSAL = "transversal";
constexpr const char* PUNTOS = "puntos";

/// Which function turns the files of one extension into those of another. The first row that fits
/// is taken, so that an extension of two meanings is an alignment unless --clase tells otherwise.
struct Camino {
    const char* clase;
    const char* entradas; ///< extensions, parted by blanks; empty: any
    const char* salidas;
    const char* funcion;
};
constexpr Camino CAMINOS[] = {
    {ALINEACION, "plt", "ssh hal", "aclipplt2krt"},
    {ALINEACION, "eje", "ssh hal", "aqtr2krt"},
    {ALINEACION, "asc", "ssh hal", "aistram2krt"},
    {ALINEACION, "res", "ssh hal", "aistramList2krt"},
    {ALINEACION, "htr", "ssh hal", "ahtrazado2krt"},
    {ALINEACION, "txt", "ssh hal", "amxroad2krt"},
    {ALINEACION, "ali", "ssh hal", "aispol2krt"},
    {ALINEACION, "xml", "ssh hal", "alandxml2krt"},
    {ALINEACION, "eje", "xml", "aQSV2LandXML"},
    {ALINEACION, "plt", "xml", "aclipplt2LandXML"},
    {ALINEACION, "asc", "xml", "aistram2LandXML"},
    {ALINEACION, "txt", "xml", "aistramList2LandXML"},
    {ALINEACION, "res ali htr", "xml", "aispol2LandXML"},
    {RASANTE, "alz txt", "ssv", "ristram2krt"},
    {RASANTE, "ras", "ssv", "rqsv2krt"},
    {RASANTE, "xml", "ssv", "rlandxml2krt"},
    {RASANTE, "ras", "xml", "rqsv2landxml"},
    {RASANTE, "alz txt", "xml", "ristram2landxml"},
    {TRANSVERSAL, "trv ter plt", "ssp", "cliptrv2krt"},
    {TRANSVERSAL, "tra", "ssp", "qtr2krt"},
    {TRANSVERSAL, "rep", "ssp", "clip2krt"},
    {TRANSVERSAL, "per trm", "ssp", "istram2krt"},
    {TRANSVERSAL, "asc", "ssp", "htrazado2krt"},
    {TRANSVERSAL, "mxr", "ssp", "mxroad2krt"},
    {TRANSVERSAL, "xml", "ssp", "tralandxml2krt"},
    {TRANSVERSAL, "plt trv ter", "xml", "traclip2landxml"},
    {TRANSVERSAL, "rep", "xml", "tracliptrv2landxml"},
    {TRANSVERSAL, "tra", "xml", "traqsv2landxml"},
    {TRANSVERSAL, "trm", "xml", "traistram2landxml"},
    {TRANSVERSAL, "per asc", "xml", "trahtrazado2lamdxml"},
    {PUNTOS, "", "krt", "puntos2krt"},
    {PUNTOS, "", "x", "puntos2nivel"},
    {PUNTOS, "", "tpc", "lectkrt2bronex"},
};

QString Extension(const QString& ruta)
{
    return QFileInfo(ruta).suffix().toLower();
}

bool Esta(const QString& extension, const char* lista)
{
    return QString::fromLatin1(lista).split(u' ').contains(extension);
}

const Camino& Elegir_Camino(const QString& entrada, const QString& salida, const QString& clase)
{
    const QString de = Extension(entrada), a = Extension(salida);
    for (const Camino& c : CAMINOS)
        if ((clase.isEmpty() || clase == QLatin1String(c.clase)) &&
            (!*c.entradas || Esta(de, c.entradas)) && Esta(a, c.salidas))
            return c;
    throw Error_Uso{QStringLiteral("No hay conversión de \".%1\" a \".%2\"").arg(de, a) +
                    (clase.isEmpty() ? QString() : " de la clase " + clase)};
}

/// Prints the result of a conversion, and what its report tells.
int Informar(const Contexto& c, int resultado, const Informe_Lectura& informe)
{
    c.Linea(QString::number(resultado));
    if (resultado == 0 || informe.Hay_Omisiones())
        for (const QString& linea : informe.Lineas())
            c.Mensaje(linea);
    return resultado != 0 ? HECHO : RECHAZADO;
}

/// What must be chosen in a LandXML file with more than one choice.
struct Eleccion {
    const char* funcion;
    const char* opcion;
    QStringList (*listar)(QIODevice&);
};
constexpr Eleccion ELECCIONES[] = {
    {"alandxml2krt", "eje", Listar_Ejes_LandXML},
    {"rlandxml2krt", "perfil", Listar_Rasantes_LandXML},
    {"tralandxml2krt", "seccion", Listar_Secciones_LandXML},
};

const Eleccion* Eleccion_De(const char* funcion)
{
    for (const Eleccion& e : ELECCIONES)
        if (QLatin1String(funcion) == QLatin1String(e.funcion)) return &e;
    return nullptr;
}

/// The only choice of the file when none is named. A file of several is refused: the wrong road
/// would look as good as the right one.
std::optional<QString> Unica(const Contexto& c, const Eleccion& e, const QString& entrada)
{
    QStringList elecciones;
    try {
        QFile fichero(entrada);
        Conversion::Abrir(fichero);
        elecciones = e.listar(fichero);
    } catch (const Fallo_Conversion& f) {
        Informe_Lectura informe;
        informe.Fallar(f);
        c.Mensaje(informe.Lineas().join(u'\n'));
        return {};
    }
    if (elecciones.size() == 1)
        return e.listar == Listar_Ejes_LandXML ? QStringLiteral("0") : elecciones[0];
    c.Mensaje(elecciones.isEmpty()
                  ? QStringLiteral("El fichero no tiene nada de esa clase")
                  : QStringLiteral("Elija con --%1:").arg(QLatin1String(e.opcion)));
    for (qsizetype i = 0; i < elecciones.size(); ++i)
        c.Mensaje(e.listar == Listar_Ejes_LandXML
                      ? QStringLiteral("%1\t%2").arg(i).arg(elecciones[i])
                      : elecciones[i]);
    return {};
}

/// The arguments that come before source and target.
QStringList Partes(const Eleccion& e, const QString& eleccion)
{
    if (e.listar == Listar_Ejes_LandXML) return {QString::number(Numero_De(eleccion, "--eje"))};
    if (e.listar != Listar_Secciones_LandXML) return {eleccion};
    const qsizetype dos_puntos = eleccion.indexOf(u':');
    if (dos_puntos < 0) throw Error_Uso{"El valor de --seccion no es \"alineación:superficie\""};
    return {eleccion.left(dos_puntos), eleccion.mid(dos_puntos + 1)};
}

} // namespace

int Orden_Convertidor(const Contexto& c, const QStringList& palabras)
{
    QStringList argumentos = Argumentos(palabras, {}).Sueltos(1, palabras.size());
    const QString nombre = argumentos.takeFirst();
    const Funcion* f = Buscar_Funcion(nombre);
    if (!f) throw Error_Uso{"Función desconocida: " + nombre};
    const Numero_Argumentos n = Argumentos_De(*f);
    if (argumentos.size() < n.minimo || argumentos.size() > n.maximo)
        throw Error_Uso{"Los argumentos de " + nombre + " son " +
                        QString::fromLatin1(f->argumentos)};
    if (QLatin1String(f->argumentos).startsWith(QLatin1String("INDICE")))
        Numero_De(argumentos[0], "INDICE");
    Informe_Lectura informe;
    const int resultado = Ejecutar_Funcion(*f, argumentos, informe);
    return Informar(c, resultado, informe);
}

int Orden_Convertir(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"eje", "perfil", "seccion", "clase"});
    const QStringList ficheros = a.Sueltos(2, 2);
    const QString clase = a.Opcion("clase");
    if (a.Hay("clase") && !QStringList{ALINEACION, RASANTE, TRANSVERSAL, PUNTOS}.contains(clase))
        throw Error_Uso{"Clase desconocida: " + clase};
    const Camino& camino = Elegir_Camino(ficheros[0], ficheros[1], clase);
    const Eleccion* eleccion = Eleccion_De(camino.funcion);
    for (const Eleccion& e : ELECCIONES)
        if (a.Hay(e.opcion) && &e != eleccion)
            throw Error_Uso{QStringLiteral("--%1 no vale en esta conversión").arg(e.opcion)};
    QStringList argumentos;
    if (eleccion) {
        const auto cual = a.Hay(eleccion->opcion) ? std::optional(a.Opcion(eleccion->opcion))
                                                  : Unica(c, *eleccion, ficheros[0]);
        if (!cual) return RECHAZADO;
        argumentos = Partes(*eleccion, *cual);
    }
    argumentos << ficheros[0] << ficheros[1];
    c.Linea(QStringLiteral("MyDll_") + QLatin1String(camino.funcion));
    Informe_Lectura informe;
    const int resultado =
        Ejecutar_Funcion(QString::fromLatin1(camino.funcion), argumentos, informe);
    return Informar(c, resultado, informe);
}
