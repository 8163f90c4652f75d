#include "app/cli/Envio_Consola.h"
#include "app/cli/Instalacion.h"
#include "app/cli/Opciones_Comunes.h"
#include "app/cli/Ordenes_Transfer.h"
#include "conversions/biblioteca/Flujo_Conversion.h"
#include "conversions/biblioteca/Peticiones_Conversion.h"
#include "core/Familia.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "session/Desplazamiento.h"
#include "session/Peticiones_Sesion.h"
#include "session/Separadores.h"
#include "transfer/Despacho.h"

#include <QFileInfo>
#include <QScopeGuard>

namespace {

struct Pedido {
    QString modelo, fichero, puerto, salida, clase;
    int ope = 0, separador = 0;
    std::optional<QStringList> desplazamiento; // X, Y, Z as typed
    QString eje, parte; // of a LandXML file: a number, or the words of a line
    bool seguimiento = false;
};

Pedido Leer_Pedido(const Argumentos& a)
{
    a.Sueltos(0, 0);
    Pedido p;
    p.modelo = a.Obligada("modelo");
    p.ope = a.Numero("ope");
    p.fichero = a.Obligada("fichero");
    if (p.fichero.isEmpty()) throw Error_Uso{"Falta el nombre del fichero"};
    p.puerto = a.Opcion("puerto");
    p.salida = a.Opcion("salida");
    p.clase = a.Opcion("clase");
    p.separador = Leer_Separador(a);
    p.desplazamiento = Leer_Desplazamiento(a);
    if (a.Hay("eje")) p.eje = QString::number(a.Numero("eje"));
    p.parte = a.Opcion("perfil", a.Opcion("seccion"));
    if (int(a.Hay("eje")) + int(a.Hay("perfil")) + int(a.Hay("seccion")) > 1)
        throw Error_Uso{"Sólo vale una de las opciones --eje, --perfil y --seccion"};
    p.seguimiento = a.Hay("seguimiento");
    return p;
}

// The file dialogs: the one that opens gets the source and the pattern of its kind, the one that
// saves the target. Each is answered once, since a road that sends keeps asking.
class Ficheros_Pedidos {
public:
    explicit Ficheros_Pedidos(const Pedido& p) : pedido(p) {}

    std::optional<Fichero_Elegido> operator()(const Peticion_Fichero& peticion)
    {
        QString& nombre = peticion.guardar ? salida : fichero;
        const QString este = std::exchange(nombre, QString());
        if (este.isEmpty())
            throw Error_Ejecucion(52, peticion.titulo +
                                          ": no se puede elegir un fichero desde la consola");
        return Fichero_Elegido{este, Indice(peticion.filtro)};
    }

private:
    // A pattern that the filter doesn't have chooses none: the extension then fits nothing.
    int Indice(const QString& filtro) const
    {
        const QString clase =
            pedido.clase.isEmpty() ? QFileInfo(pedido.fichero).suffix().toLower() : pedido.clase;
        const QStringList piezas = filtro.split(u'|');
        for (qsizetype i = 1; i < piezas.size(); i += 2)
            if (piezas[i].trimmed() == "*." + clase) return int(i / 2) + 1;
        return int(piezas.size() / 2) + 1;
    }

    const Pedido& pedido;
    QString fichero = pedido.fichero, salida = pedido.salida;
};

// The part of a LandXML file; a file of several is refused without a choice, since the wrong road
// would look as good as the right one.
Eleccion_LandXML Elegir_Parte(const Contexto& c, const Pedido& p)
{
    const QStringList lista = Tomar_Lista();
    qsizetype cual = lista.size() == 1 ? 0 : -1;
    if (!p.eje.isEmpty()) cual = p.eje.toInt();
    if (!p.parte.isEmpty()) cual = lista.indexOf(p.parte);
    if (cual >= 0 && cual < lista.size()) return {int(cual), lista[cual]};
    c.Mensaje(lista.isEmpty() ? "El fichero no tiene nada de esa clase"
                              : "Elija con --eje, --perfil o --seccion:");
    for (qsizetype i = 0; i < lista.size(); ++i)
        c.Mensaje(QString::number(i) + '\t' + lista[i]);
    return {};
}

void Contar_Malos(const Contexto& c, const QString& lista)
{
    for (const QString& punto : lista.split(QChar(SEP_LISTA))) {
        const QStringList campos = punto.split(QChar(SEP_CAMPO));
        c.Mensaje("Coordenadas que no caben en el aparato: " + campos.value(0) +
                  " X: " + campos.value(1) + " Y: " + campos.value(2) + " Z: " + campos.value(3));
    }
}

// The dialogs of the road while it lives; what they ask for the order has said.
class Respuestas {
public:
    Respuestas(const Contexto& c, const Pedido& p)
        : sesion(Peticiones_De_Sesion()), conversion(Peticiones_De_Conversion())
    {
        Offset_Cargas = p.desplazamiento.has_value();
        Ayuda_Recuerde = Ayuda_Visible = false;
        Peticiones_Sesion& pide = Peticiones_De_Sesion();
        pide.Pedir_Separador = [&p] {
            return QString(Separadores()[std::size_t(p.separador)].caracter);
        };
        pide.Pedir_Desplazamientos = [&p](bool, bool, bool, const QString& forma) {
            const QStringList& d = *p.desplazamiento;
            Poner_Desplazamientos(d[0], d[1], d[2], forma);
            return true;
        };
        pide.Mostrar_Puntos_Malos = [&c](const QString& lista) { Contar_Malos(c, lista); };
        Peticiones_De_Conversion().Elegir_De_Lista = [&c, &p] { return Elegir_Parte(c, p); };
    }
    ~Respuestas()
    {
        Peticiones_De_Sesion() = sesion;
        Peticiones_De_Conversion() = conversion;
    }
    Respuestas(const Respuestas&) = delete;
    Respuestas& operator=(const Respuestas&) = delete;

private:
    Peticiones_Sesion sesion;
    Peticiones_Conversion conversion;
};

// @return what the file holds; nothing when it can't be read
std::optional<QByteArray> Contenido(const QString& fichero)
{
    if (!QFileInfo(fichero).isFile()) return std::nullopt;
    return Ficheros::Leer(fichero);
}

// The level takes no line: its points become a file.
bool A_Fichero(const Pedido& p)
{
    const QString temporal = En_Instalacion("miraldos.$$$");
    QFile::remove(temporal);
    Lanzar_Operacion(Clave_Estacion, p.ope, "C");
    const auto hecho = Contenido(temporal);
    return hecho && hecho == Contenido(p.salida);
}

} // namespace

QString Uso_Enviar()
{
    return "enviar --modelo NOMBRE --ope N --puerto DISPOSITIVO --fichero FICHERO [--separador " +
           Palabras_Separador().join('|') +
           "] [--desplazamiento X,Y,Z] [--seguimiento] [--velocidad V] [--eje N] "
           "[--perfil NOMBRE] [--seccion A:B] [--clase EXTENSION] (NV400: --salida FICHERO en vez "
           "de --puerto)";
}

int Orden_Enviar(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras,
                       {"modelo", "ope", "puerto", "fichero", "separador", "desplazamiento",
                        "velocidad", "eje", "perfil", "seccion", "clase", "salida"},
                       {"seguimiento"});
    const Pedido p = Leer_Pedido(a);
    Instalacion instalacion(c);
    instalacion.Elegir_Modelo(p.modelo);
    const bool por_fichero = Familia_Actual().carga == Carga::Fichero;
    a.Obligada(por_fichero ? "salida" : "puerto");
    if (a.Hay(por_fichero ? "puerto" : "salida"))
        throw Error_Uso{QString("--") + (por_fichero ? "puerto" : "salida") +
                        " no vale para el modelo " + p.modelo};
    instalacion.Comprobar_Operacion(p.ope, "C");
    if (!por_fichero) Poner_Velocidad(a);
    instalacion.Contestar_Ficheros(Ficheros_Pedidos(p));
    const Respuestas respuestas(c, p);
    const bool hecho = por_fichero ? A_Fichero(p)
                                   : Envio_Consola{p.puerto, p.seguimiento}.Correr(
                                         c, [&p] { Lanzar_Operacion(Clave_Estacion, p.ope, "C"); });
    return hecho ? HECHO : RECHAZADO;
}
