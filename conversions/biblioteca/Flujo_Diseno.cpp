#include "conversions/biblioteca/Flujo_Diseno.h"

#include "conversions/biblioteca/Flujo_Conversion.h"
#include "conversions/biblioteca/Peticiones_Conversion.h"
#include "conversions/biblioteca/Tabla_Funciones.h"
#include "core/ModEstTotal.h"
#include "session/Filtro_Extensiones.h"

#include <algorithm>

namespace {

struct Conversion_Hecha {
    int resultado = 0;
    bool avisa = false;
    Informe_Lectura informe;
};

// The arguments that a LandXML function takes in front of its paths.
QStringList Argumentos_De_Parte(Parte_LandXML::Forma forma, const Eleccion_LandXML& eleccion)
{
    switch (forma) {
    case Parte_LandXML::Forma::Indice:
        return {QString::number(eleccion.indice)};
    case Parte_LandXML::Forma::Nombre:
        break;
    case Parte_LandXML::Forma::Dos_Nombres:
        return {Trozo(1, eleccion.texto, u':'), Trozo(2, eleccion.texto, u':')};
    }
    return {eleccion.texto};
}

// @return nothing when the user chose no part of a LandXML file
std::optional<Conversion_Hecha> Convertir(const Camino* camino, const QString& entrada,
                                          const QString& salida)
{
    Conversion_Hecha c;
    if (!camino) {
        c.informe.Fallar(
            {QStringLiteral("No hay conversión para los ficheros de este tipo"), 0, entrada});
        return c;
    }
    c.avisa = camino->avisa;
    if (camino->propio) {
        c.resultado = camino->propio(entrada, salida) ? 1 : 0;
        return c;
    }
    QStringList argumentos;
    if (camino->parte) {
        Informe_Lectura de_la_lista;
        Ejecutar_Funcion(QString::fromLatin1(camino->parte->lista), {entrada}, de_la_lista);
        const Eleccion_LandXML eleccion = Peticiones_De_Conversion().Elegir_De_Lista();
        if (!eleccion.Hay()) return std::nullopt;
        argumentos = Argumentos_De_Parte(camino->parte->forma, eleccion);
    }
    argumentos << entrada << salida;
    c.resultado = Ejecutar_Funcion(QString::fromLatin1(camino->funcion), argumentos, c.informe);
    return c;
}

// What picks the row: the extension of the name, or that of the chosen pattern.
QString Extension_Elegida(const Fila_Clase& clase, const Fichero_Elegido& elegido,
                          const QString& filtro)
{
    if (!clase.por_patron) return Extension_De(elegido.nombre);
    const QString comodin = QStringLiteral("*.");
    const QString patron = Trozo(2 * qint64(elegido.indice_filtro), filtro, u'|').trimmed();
    return patron.startsWith(comodin) ? patron.sliced(comodin.size()) : QString();
}

// A conversion ends at cancel; only an empty name is asked for again.
std::optional<Fichero_Elegido> Pedir(const Peticion_Fichero& peticion)
{
    for (;;) {
        auto elegido = Interfaz_Actual().Pedir_Fichero(peticion);
        if (!elegido || !elegido->nombre.isEmpty()) return elegido;
    }
}

// Where the converted text goes. @return empty when cancelled
QString Pedir_Salida(const Fila_Clase& clase, int guardar)
{
    if (guardar != 1) return En_Instalacion(QStringLiteral("miraldos.$$$"));
    const QString filtro = QString::fromUtf16(clase.filtro_guardar);
    const auto elegido = Pedir({.titulo = QStringLiteral("Guardar como ..."),
                                .filtro = filtro,
                                .carpeta = {},
                                .extension = {},
                                .guardar = true});
    return elegido ? Con_Extension(*elegido, filtro) : QString();
}

// Tells how it went. @return true when there is a text to go on with
bool Contar_Resultado(const Fila_Clase& clase, const Conversion_Hecha& hecho, int guardar)
{
    // The library's results are cut to 16 bits.
    const auto resultado = static_cast<qint16>(hecho.resultado);
    if (resultado == 0) {
        Interfaz_Actual().Mensaje(QStringLiteral("La carga de Datos no se pudo realizar"));
        Mostrar_Omisiones(hecho.informe);
        return false;
    }
    if (resultado == -1) {
        if (hecho.avisa)
            Interfaz_Actual().Mensaje(QString::fromUtf16(clase.aviso_invalidos),
                                      Icono::Exclamacion);
        // Who converts sees what was left out of any kind; a sending passes over the others.
        if (hecho.avisa || guardar == 1) Mostrar_Omisiones(hecho.informe);
    }
    return true;
}

// The family that takes designs: they travel as lines of plain text.
const Familia& Familia_De_Disenos()
{
    const auto familias = Familias();
    return *std::find_if(familias.begin(), familias.end(),
                         [](const Familia& f) { return f.serie == Serie::B; });
}

} // namespace

std::optional<QString> Convertir_Diseno(Clase_Conversion clase, const QString& filtro, int Guardar,
                                        int operacion)
{
    const Fila_Clase& fila = Clase_De(clase);
    const Peticion_Fichero peticion{.titulo = Descripcion_Operacion(operacion) +
                                              QStringLiteral(" Seleccione Fichero"),
                                    .filtro = filtro,
                                    .carpeta = {},
                                    .extension = {}};
    const auto origen = Guardar == 1 ? Pedir(peticion) : Pedir_Fichero_Insistiendo(peticion);
    if (!origen) return std::nullopt;
    QString salida = Pedir_Salida(fila, Guardar);
    if (salida.isEmpty()) return std::nullopt;

    const Camino* const camino =
        Buscar_Camino(EN_ENVIO, clase, Extension_Elegida(fila, *origen, filtro));
    const auto hecho = Convertir(camino, origen->nombre, salida);
    if (!hecho || !Contar_Resultado(fila, *hecho, Guardar)) return std::nullopt;
    return salida;
}

void Convertir_A_Estandar(Clase_Conversion clase)
{
    if (clase == Clase_Conversion::Puntos) {
        Convertir_Puntos();
        return;
    }
    const int operacion = int(Clase_De(clase).operacion);
    // The files on offer are those of the instrument that takes designs, whatever the model in
    // force.
    const QString filtro =
        Filtro_Extensiones(Familia_De_Disenos().clave, operacion, QStringLiteral("C"));
    if (!Interfaz_Actual().Terminada()) Convertir_Diseno(clase, filtro, 1, operacion);
}
