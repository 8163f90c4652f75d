#include "app/cli/Ordenes_Conversion.h"
#include "conversions/biblioteca/Caminos.h"
#include "conversions/biblioteca/Conversion.h"

#include <QFileInfo>

namespace {

QString Extension(const QString& ruta)
{
    return QFileInfo(ruta).suffix().toLower();
}

/// @return the row of that word, or null
const Fila_Clase* Clase_Llamada(const QString& palabra)
{
    for (const Fila_Clase& c : Clases_De_Conversion())
        if (palabra == QLatin1String(c.palabra)) return &c;
    return nullptr;
}

/// The first row that fits: an extension of two meanings is an alignment unless --clase tells
/// otherwise.
const Camino& Elegir_Camino(const QString& entrada, const QString& salida, const Fila_Clase* clase)
{
    const QString de = Extension(entrada), a = Extension(salida);
    for (const Camino& c : Caminos())
        if ((c.lugares & EN_CONSOLA) && (!clase || c.clase == clase->clase) &&
            (!*c.extension || de == QStringView(c.extension)) && Escribe(c, a))
            return c;
    throw Error_Uso{
        QStringLiteral("No hay conversión de \".%1\" a \".%2\"").arg(de, a) +
        (clase ? QStringLiteral(" de la clase ") + QLatin1String(clase->palabra) : QString())};
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

/// The only choice of the file when none is named. A file of several is refused: the wrong road
/// would look as good as the right one.
std::optional<QString> Unica(const Contexto& c, const Parte_LandXML& e, const QString& entrada)
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
        return e.forma == Parte_LandXML::Forma::Indice ? QStringLiteral("0") : elecciones[0];
    c.Mensaje(elecciones.isEmpty()
                  ? QStringLiteral("El fichero no tiene nada de esa clase")
                  : QStringLiteral("Elija con --%1:").arg(QLatin1String(e.opcion)));
    for (qsizetype i = 0; i < elecciones.size(); ++i)
        c.Mensaje(e.forma == Parte_LandXML::Forma::Indice
                      ? QStringLiteral("%1\t%2").arg(i).arg(elecciones[i])
                      : elecciones[i]);
    return {};
}

/// The arguments that come before source and target.
QStringList Partes(const Parte_LandXML& e, const QString& eleccion)
{
    if (e.forma == Parte_LandXML::Forma::Indice)
        return {QString::number(Numero_De(eleccion, "--eje"))};
    if (e.forma != Parte_LandXML::Forma::Dos_Nombres) return {eleccion};
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
    const Fila_Clase* const clase = Clase_Llamada(a.Opcion("clase"));
    if (a.Hay("clase") && !clase) throw Error_Uso{"Clase desconocida: " + a.Opcion("clase")};
    const Camino& camino = Elegir_Camino(ficheros[0], ficheros[1], clase);
    const Parte_LandXML* const parte = camino.parte;
    for (const Camino& otro : Caminos())
        if (otro.parte && otro.parte != parte && a.Hay(otro.parte->opcion))
            throw Error_Uso{
                QStringLiteral("--%1 no vale en esta conversión").arg(otro.parte->opcion)};
    QStringList argumentos;
    if (parte) {
        const auto cual = a.Hay(parte->opcion) ? std::optional(a.Opcion(parte->opcion))
                                               : Unica(c, *parte, ficheros[0]);
        if (!cual) return RECHAZADO;
        argumentos = Partes(*parte, *cual);
    }
    argumentos << ficheros[0] << ficheros[1];
    c.Linea(QStringLiteral("MyDll_") + QLatin1String(camino.funcion));
    Informe_Lectura informe;
    const int resultado =
        Ejecutar_Funcion(QString::fromLatin1(camino.funcion), argumentos, informe);
    return Informar(c, resultado, informe);
}
