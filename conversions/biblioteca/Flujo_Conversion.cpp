#include "conversions/biblioteca/Flujo_Conversion.h"

#include "conversions/biblioteca/Fichero_Lista.h"
#include "conversions/biblioteca/Peticiones_Conversion.h"
#include "conversions/biblioteca/Tabla_Funciones.h"
#include "core/Estado_Global.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"

#include <QFile>
#include <QFileInfo>

namespace {

const QString FIN_LINEA = QStringLiteral("\r\n");

// A longer list would leave the screen.
constexpr qsizetype OMISIONES_VISIBLES = 20;

// @return the name, empty when cancelled
QString Pedir(const Peticion_Fichero& peticion)
{
    const auto elegido = Interfaz_Actual().Pedir_Fichero(peticion);
    return elegido ? elegido->nombre : QString();
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
        QString destino = Pedir({.titulo = QStringLiteral("Fichero Destino"),
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
    const QString filtro = QString::fromUtf16(Clase_De(clase).filtro_landxml);
    if (filtro.isEmpty()) return;
    const QString origen = Pedir({.titulo = QStringLiteral("Seleccione Fichero a convertir"),
                                  .filtro = filtro,
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
    if (const Camino* const camino = Buscar_Camino(EN_LANDXML, clase, Extension_De(origen)))
        resultado =
            Ejecutar_Funcion(QString::fromLatin1(camino->funcion), {origen, destino}, informe);
    else
        informe.Fallar(
            {QStringLiteral("No hay conversión para los ficheros de esta extensión"), 0, origen});
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
