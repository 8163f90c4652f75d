#include "conversions/Flujo_Conversion.h"

#include "conversions/Fichero_Lista.h"
#include "conversions/Peticiones_Conversion.h"
#include "conversions/Tabla_Funciones.h"
#include "core/Estado_Global.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"

#include <QFile>
#include <QFileInfo>
#include <span>

namespace {

const QString FIN_LINEA = QStringLiteral("\r\n");

// A longer list would leave the screen.
constexpr qsizetype OMISIONES_VISIBLES = 20;

struct Rama {
    const char16_t* extension;
    const char* funcion;
};

struct Flujo_LandXML {
    const char16_t* filtro;
    std::span<const Rama> ramas;
};

constexpr Rama ALINEACIONES[] = {
    {u"EJE", "aQSV2LandXML"},        {u"PLT", "aclipplt2LandXML"}, {u"ASC", "aistram2LandXML"},
    {u"TXT", "aistramList2LandXML"}, {u"RES", "aispol2LandXML"},
};
constexpr Rama RASANTES[] = {{u"RAS", "rqsv2landxml"}, {u"TXT", "ristram2landxml"}};
// "*.ter" and "*.mxr" are on offer without a branch, and "PLT" has one without being on offer.
constexpr Rama TRANSVERSALES[] = {
    {u"PLT", "traclip2landxml"},   {u"REP", "tracliptrv2landxml"},  {u"TRA", "traqsv2landxml"},
    {u"TRM", "traistram2landxml"}, {u"PER", "trahtrazado2lamdxml"},
};

const Flujo_LandXML FLUJOS[] = {
    {u"Formato QSV (*.eje)|*.eje|Formato de CLIP (*.plt)|*.plt|Formato de ISTRAM(*.asc)|*.asc|"
     u"Formato de MXROAD(*.txt)|*.txt|Formato de HTRAZADO(*.res)|*.res",
     ALINEACIONES},
    {u"Formato QSV (*.ras)|*.ras|Formato de ISTRAM(*.txt)|*.txt", RASANTES},
    {u"Formato QSV (*.tra)|*.tra|Formato de CLIP (*.rep)|*.rep|Formato de CLIP TER(*.ter)|*.ter|"
     u"Formato de ISTRAM(*.trm)|*.trm|Formato de MXROAD(*.mxr)|*.mxr|Formato de "
     u"HTRAZADO(*.per)|*.per",
     TRANSVERSALES},
};

// @return the name, empty when cancelled
QString Pedir(const Peticion_Fichero& peticion)
{
    const auto elegido = Interfaz_Actual().Pedir_Fichero(peticion);
    return elegido ? elegido->nombre : QString();
}

QString Funcion_De(const Flujo_LandXML& flujo, const QString& origen)
{
    const QString extension = Extension_De(origen);
    for (const Rama& rama : flujo.ramas)
        if (extension == QStringView(rama.extension)) return QString::fromLatin1(rama.funcion);
    return {};
}

} // namespace

Peticiones_Conversion& Peticiones_De_Conversion()
{
    return Estado_Global::Unico<Peticiones_Conversion>();
}

QStringList Tomar_Lista()
{
    const QString fichero = Fichero_Lista();
    QStringList lineas;
    try {
        lineas = Ficheros::Leer_Lineas(fichero);
    } catch (const Error_Ejecucion&) {
        // The dialog then has nothing to choose from, which is all that there is to say.
        return {};
    }
    QFile::remove(fichero);
    return lineas;
}

QString Extension_De(const QString& ruta)
{
    return ruta.mid(ruta.lastIndexOf(u'.') + 1).toUpper();
}

QString Con_Extension(const Fichero_Elegido& elegido, const QString& filtro)
{
    if (QFileInfo(elegido.nombre).fileName().contains(u'.')) return elegido.nombre;
    const QString patron = Trozo(2 * qint64(elegido.indice_filtro), filtro, u'|');
    return elegido.nombre + patron.mid(patron.indexOf(u'*') + 1);
}

void Mostrar_Omisiones(const Informe_Lectura& informe)
{
    QStringList lineas = informe.Lineas();
    if (lineas.isEmpty()) return;
    if (lineas.size() > OMISIONES_VISIBLES) {
        const qsizetype resto = lineas.size() - OMISIONES_VISIBLES;
        lineas.resize(OMISIONES_VISIBLES);
        lineas << QStringLiteral("... y %1 más").arg(resto);
    }
    Interfaz_Actual().Mensaje(QStringLiteral("Lo que no se ha podido convertir:") + FIN_LINEA +
                                  lineas.join(FIN_LINEA),
                              Icono::Informacion);
}

// The target's dialog, which doesn't let a file that exists be overwritten unasked.
static QString Pedir_Destino_Puntos(const QString& origen)
{
    for (;;) {
        const QString destino = Pedir({.titulo = QStringLiteral("Fichero Destino"),
                                       .filtro = QStringLiteral("Puntos KRT (*.krt)|*.krt"),
                                       .carpeta = {},
                                       .extension = QStringLiteral("krt"),
                                       .guardar = true});
        if (destino == origen || !QFileInfo::exists(destino)) return destino;
        if (Interfaz_Actual().Preguntar(destino + QStringLiteral(" ya existe.") + FIN_LINEA +
                                        QStringLiteral("¿Desea reemplazarlo?")))
            return destino;
    }
}

void Convertir_A_LandXML(Clase_Conversion clase)
{
    if (clase == Clase_Conversion::Puntos) return;
    const Flujo_LandXML& flujo = FLUJOS[std::size_t(clase)];
    const QString origen = Pedir({.titulo = QStringLiteral("Seleccione Fichero a convertir"),
                                  .filtro = QString::fromUtf16(flujo.filtro),
                                  .carpeta = Ruta_Aplicacion,
                                  .extension = {}});
    if (origen.isEmpty()) return;
    const QString destino = Pedir({.titulo = QStringLiteral("Guardar como ..."),
                                   .filtro = QStringLiteral("Formato LandXML (*.xml)|*.xml"),
                                   .carpeta = {},
                                   .extension = {},
                                   .guardar = true});
    if (destino.isEmpty()) return;

    Informe_Lectura informe;
    int resultado = 0;
    if (const QString funcion = Funcion_De(flujo, origen); funcion.isEmpty())
        informe.Fallar(
            {QStringLiteral("No hay conversión para los ficheros de esta extensión"), 0, origen});
    else
        resultado = Ejecutar_Funcion(funcion, {origen, destino}, informe);
    Interfaz_Actual().Mensaje(resultado ? QStringLiteral("Fichero convertido correctamente")
                                        : QStringLiteral("Error en la conversión"));
    if (resultado != 1) Mostrar_Omisiones(informe);
}

void Convertir_Puntos()
{
    const QString origen = Pedir({.titulo = QStringLiteral("Fichero Origen"),
                                  .filtro = QStringLiteral("Puntos espacios/tab. (*.*)|*.*"),
                                  .carpeta = {},
                                  .extension = {}});
    if (origen.isEmpty()) return;
    const QString destino = Pedir_Destino_Puntos(origen);
    if (destino.isEmpty()) return;
    if (origen == destino) {
        Interfaz_Actual().Mensaje(
            QStringLiteral("El fichero destino debe ser diferente al origen"));
        return;
    }
    Informe_Lectura informe;
    const int resultado = Ejecutar_Funcion(u"puntos2krt", {origen, destino}, informe);
    Interfaz_Actual().Mensaje(resultado ? QStringLiteral("Generado correctamente fichero ") +
                                              FIN_LINEA + destino
                                        : QStringLiteral("Error en la conversión"));
    if (resultado == 0) Mostrar_Omisiones(informe);
}
