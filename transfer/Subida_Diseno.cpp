#include "transfer/Subida_Diseno.h"

#include "conversions/Flujo_Conversion.h"
#include "conversions/ModCLIP.h"
#include "conversions/Peticiones_Conversion.h"
#include "conversions/Tabla_Funciones.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "session/Desplazamiento.h"
#include "transfer/Despacho.h"

#include <optional>
#include <span>

namespace {

const QString FIN_LINEA = QStringLiteral("\r\n");
const QString SEPARADOR = QStringLiteral(",");

// Above this a file takes long enough to show how far it is.
constexpr qsizetype POCOS_BLOQUES = 4096;

// Converter of one extension or pattern.
struct Rama {
    const char16_t* clave;
    const char* funcion;
    // A result of -1 is told to the user; after the other kinds it passes without a word.
    bool avisa = false;
};

constexpr Rama ALINEACIONES[] = {
    {u"PLT", "aclipplt2krt", true}, {u"EJE", "aqtr2krt"},      {u"ASC", "aistram2krt"},
    {u"RES", "aistramList2krt"},    {u"HTR", "ahtrazado2krt"}, {u"TXT", "amxroad2krt"},
    {u"XML", "alandxml2krt", true}, {u"ALI", "aispol2krt"},
};
constexpr Rama RASANTES[] = {
    {u"ALZ", "ristram2krt"},
    {u"TXT", "ristram2krt"},
    {u"RAS", "rqsv2krt", true},
    {u"XML", "rlandxml2krt", true},
};
constexpr Rama TRANSVERSALES[] = {
    {u"*.trv", "cliptrv2krt"},    {u"*.tra", "qtr2krt"},      {u"*.rep", "clip2krt"},
    {u"*.per", "istram2krt"},     {u"*.asc", "htrazado2krt"}, {u"*.mxr", "mxroad2krt"},
    {u"*.xml", "tralandxml2krt"},
};

const Rama* Buscar_Rama(std::span<const Rama> ramas, QStringView clave)
{
    for (const Rama& rama : ramas)
        if (clave == QStringView(rama.clave)) return &rama;
    return nullptr;
}

struct Conversion_Diseno {
    int resultado = 0;
    bool avisa = false;
    Informe_Lectura informe;
};

// Runs a converter that takes a choice of a LandXML file in front of its paths.
// @return nothing when the user chose none
std::optional<Conversion_Diseno>
Convertir_LandXML(const Rama& rama, const char* lista, const QString& entrada,
                  const QString& salida,
                  const std::function<QStringList(const Eleccion_LandXML&)>& argumentos)
{
    Conversion_Diseno c{0, rama.avisa, {}};
    Informe_Lectura de_la_lista;
    Ejecutar_Funcion(QString::fromLatin1(lista), {entrada}, de_la_lista);
    const Eleccion_LandXML eleccion = Peticiones_De_Conversion().Elegir_De_Lista();
    if (!eleccion.Hay()) return std::nullopt;
    c.resultado = Ejecutar_Funcion(QString::fromLatin1(rama.funcion),
                                   argumentos(eleccion) + QStringList{entrada, salida}, c.informe);
    return c;
}

Conversion_Diseno Convertir_Fichero(const Rama* rama, const QString& entrada, const QString& salida)
{
    Conversion_Diseno c;
    if (!rama) {
        c.informe.Fallar(
            {QStringLiteral("No hay conversión para los ficheros de este tipo"), 0, entrada});
        return c;
    }
    c.avisa = rama->avisa;
    c.resultado =
        Ejecutar_Funcion(QString::fromLatin1(rama->funcion), {entrada, salida}, c.informe);
    return c;
}

// The three routines differ in these.
struct Clase_Diseno {
    const char16_t* filtro_guardar;
    const char16_t* aviso_invalidos;
    // Converts what was chosen; nothing when the user chose no part of it.
    std::optional<Conversion_Diseno> (*convertir)(const Fichero_Elegido& elegido,
                                                  const QString& filtro, const QString& salida);
};

std::optional<Conversion_Diseno> Convertir_Alineacion(const Fichero_Elegido& elegido,
                                                      const QString&, const QString& salida)
{
    const Rama* const rama = Buscar_Rama(ALINEACIONES, Extension_De(elegido.nombre));
    if (rama && rama->clave == QStringView(u"XML"))
        return Convertir_LandXML(
            *rama, "seleccionaEjeLandXML", elegido.nombre, salida,
            [](const Eleccion_LandXML& e) { return QStringList{QString::number(e.indice)}; });
    return Convertir_Fichero(rama, elegido.nombre, salida);
}

std::optional<Conversion_Diseno> Convertir_Rasante(const Fichero_Elegido& elegido, const QString&,
                                                   const QString& salida)
{
    const Rama* const rama = Buscar_Rama(RASANTES, Extension_De(elegido.nombre));
    if (rama && rama->clave == QStringView(u"XML"))
        return Convertir_LandXML(*rama, "seleccionaRasanteLandXML", elegido.nombre, salida,
                                 [](const Eleccion_LandXML& e) { return QStringList{e.texto}; });
    return Convertir_Fichero(rama, elegido.nombre, salida);
}

std::optional<Conversion_Diseno> Convertir_Transversal(const Fichero_Elegido& elegido,
                                                       const QString& filtro, const QString& salida)
{
    const QString patron =
        Trozo(2 * qint64(elegido.indice_filtro), filtro, QStringLiteral("|")).trimmed().toLower();
    if (patron == u"*.ter") {
        // It shows its own message when it fails.
        return Conversion_Diseno{Convertir_Ter(elegido.nombre, salida) ? 1 : 0, false, {}};
    }
    const Rama* const rama = Buscar_Rama(TRANSVERSALES, patron);
    if (rama && patron == u"*.xml")
        return Convertir_LandXML(
            *rama, "seleccionaTransverLandXML", elegido.nombre, salida,
            [](const Eleccion_LandXML& e) {
                return QStringList{Trozo(1, e.texto, u':'), Trozo(2, e.texto, u':')};
            });
    return Convertir_Fichero(rama, elegido.nombre, salida);
}

const Clase_Diseno DE_ALINEACIONES = {
    u"Formato Miraldos (*.ssh)|*.ssh|Formato Miraldos 640/6000 (*.hal)|*.hal",
    u"Existen alineaciones no válidas", Convertir_Alineacion};
const Clase_Diseno DE_RASANTES = {u"Formato Miraldos (*.ssv)|*.ssv",
                                  u"Existen vértices de rasantes no válidos", Convertir_Rasante};
const Clase_Diseno DE_TRANSVERSALES = {u"Formato Miraldos (*.ssp)|*.ssp", u"",
                                       Convertir_Transversal};

// A conversion ends at cancel; only an empty name is asked for again.
std::optional<Fichero_Elegido> Pedir(const Peticion_Fichero& peticion)
{
    for (;;) {
        const auto elegido = Interfaz_Actual().Pedir_Fichero(peticion);
        if (!elegido || !elegido->nombre.isEmpty()) return elegido;
    }
}

// Where the converted text goes. @return empty when cancelled
QString Pedir_Salida(const Clase_Diseno& clase, int guardar)
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

void Subir_Diseno(const Clase_Diseno& clase, const QString& filtro, int guardar,
                  const Envio_Diseno& envio)
{
    const Peticion_Fichero peticion{.titulo = Descripcion_Operacion(envio.operacion) +
                                              QStringLiteral(" Seleccione Fichero"),
                                    .filtro = filtro,
                                    .carpeta = {},
                                    .extension = {}};
    const auto origen = guardar == 1 ? Pedir(peticion) : Pedir_Fichero_Insistiendo(peticion);
    if (!origen) return;
    const QString salida = Pedir_Salida(clase, guardar);
    if (salida.isEmpty()) return;

    const auto hecho = clase.convertir(*origen, filtro, salida);
    if (!hecho) return;
    // The library's results are cut to 16 bits.
    const auto resultado = static_cast<qint16>(hecho->resultado);
    if (resultado == 0) {
        Interfaz_Actual().Mensaje(QStringLiteral("La carga de Datos no se pudo realizar"));
        Mostrar_Omisiones(hecho->informe);
        return;
    }
    if (resultado == -1) {
        if (hecho->avisa)
            Interfaz_Actual().Mensaje(QString::fromUtf16(clase.aviso_invalidos),
                                      Icono::Exclamacion);
        // Who converts sees what was left out of any kind; a sending passes over the others.
        if (hecho->avisa || guardar == 1) Mostrar_Omisiones(hecho->informe);
    }
    QString texto;
    if (!Leer_Fichero_Envio(salida, texto, SEPARADOR, false, ENVIO_CONVERTIDO)) return;
    if (guardar != 1 && envio.enviar) envio.enviar(texto);
}

// A point line for the instrument; nothing when the line has too few fields.
std::optional<QString> Linea_De_Punto(QString linea, const QString& separador, bool offsets)
{
    if (separador == u" ") linea = Quitar_Espacios_Dobles(linea);
    if (Contar_Trozos(linea, separador) < 4) return std::nullopt;
    const QString sin = QStringLiteral("0");
    const QString* const desplazamientos[] = {&Desp_X, &Desp_Y, &Desp_Z};
    QStringList campos = {Trozo(1, linea, separador)};
    for (int i = 0; i < 3; ++i)
        campos << Formato_Coordenada(offsets ? *desplazamientos[i] : sin,
                                     QString::fromUtf16(FORMATO_COORDENADA),
                                     Trozo(i + 2, linea, separador), QStringLiteral("6,3"));
    campos << Trozo(5, linea, separador);
    return campos.join(u',');
}

} // namespace

void Subir_Alineaciones(const QString& filtro, int Guardar, const Envio_Diseno& envio)
{
    Subir_Diseno(DE_ALINEACIONES, filtro, Guardar, envio);
}

void Subir_Rasantes(const QString& filtro, int Guardar, const Envio_Diseno& envio)
{
    Subir_Diseno(DE_RASANTES, filtro, Guardar, envio);
}

void Subir_Transversales(const QString& filtro, int Guardar, const Envio_Diseno& envio)
{
    Subir_Diseno(DE_TRANSVERSALES, filtro, Guardar, envio);
}

void Convertir_A_Estandar(Clase_Conversion clase)
{
    struct Ruta_Estandar {
        int operacion;
        void (*subir)(const QString& filtro, int Guardar, const Envio_Diseno& envio);
    };
    constexpr Ruta_Estandar RUTAS[] = {
        {6, Subir_Alineaciones}, {8, Subir_Rasantes}, {7, Subir_Transversales}};
    if (clase == Clase_Conversion::Puntos) {
        Convertir_Puntos();
        return;
    }
    const Ruta_Estandar& ruta = RUTAS[std::size_t(clase)];
    // The files on offer are those of the instrument that takes designs, whatever the model in
    // force.
    const QString filtro =
        Filtro_Extensiones(QStringLiteral("KRT800"), ruta.operacion, QStringLiteral("C"));
    if (!Interfaz_Actual().Terminada()) ruta.subir(filtro, 1, {ruta.operacion, {}});
}

bool Leer_Fichero_Envio(const QString& fichero, QString& texto, const QString& separador,
                        bool offsets, int tipo)
try {
    const QStringList lineas = Ficheros::Leer_Lineas(fichero);
    qint64 largo = 0;
    for (const QString& linea : lineas)
        largo += linea.size() + FIN_LINEA.size();
    std::optional<Proceso> proceso;
    Proceso_Cancelado = false;
    if (largo > POCOS_BLOQUES)
        proceso.emplace(QStringLiteral("Procesando Fichero de Puntos..."), largo);

    qint64 hecho = 0;
    QString salida;
    for (const QString& linea : lineas) {
        if (Proceso_Cancelado) return false;
        if (tipo == ENVIO_PUNTOS)
            salida = Linea_De_Punto(linea, separador, offsets).value_or(salida);
        else
            salida = linea;
        texto += salida + FIN_LINEA;
        hecho += linea.size() + FIN_LINEA.size();
        if (proceso) Interfaz_Actual().Proceso_Avanzar(hecho);
    }
    return true;
} catch (...) {
    Informe_Error(QStringLiteral("Se produjo un error al Procesar el Fichero"), Error_En_Curso());
    return false;
}

QString Formato_Coordenada(const QString& offset, const QString& formatoOffset,
                           const QString& valor, const QString& formatoSalida)
{
    const auto numero = Decimal::Leer(valor);
    if (!numero) throw Error_Ejecucion(13);
    const Decimal suma = *numero + Valor_Desplazamiento(offset, formatoOffset);
    const int cuantos = Anchos_Numero::Leer(formatoSalida).decimales;
    QString decimales = suma.Decimales(cuantos);
    const bool redondea_a_la_unidad =
        decimales == QString(cuantos, u'0') && suma.Decimales(18).startsWith(u'9');
    if (redondea_a_la_unidad) decimales = QString(u'1' + decimales).left(cuantos);
    return (suma.Negativo() ? QStringLiteral("-") : QString()) + QString::number(suma.Entera()) +
           u'.' + decimales;
}
