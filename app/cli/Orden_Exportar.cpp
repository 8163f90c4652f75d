#include "app/cli/Instalacion.h"
#include "app/cli/Opciones_Comunes.h"
#include "app/cli/Ordenes_Export.h"
#include "app/cli/Ordenes_Sesion.h"
#include "core/ModEstTotal.h"
#include "export/Dialogo_Exportar.h"
#include "formats/Formato_Existente_Nivel.h"
#include "session/Desplazamiento.h"
#include "session/Peticiones_Sesion.h"
#include "session/Separadores.h"

namespace {

QStringList Palabras_Tipo()
{
    QStringList palabras;
    for (const Salida_Exportar* salida : Salidas_Por_Palabra())
        palabras << salida->palabra;
    return palabras;
}

const Salida_Exportar& Salida_De_Palabra(const QString& palabra)
{
    for (const Salida_Exportar* salida : Salidas_Por_Palabra())
        if (salida->palabra.compare(palabra, Qt::CaseInsensitive) == 0) return *salida;
    throw Error_Uso{"El tipo es " + Enumerar(Palabras_Tipo()) + ": " + palabra};
}

struct Pedido {
    int id = 0;
    QString formato, fichero;
    const Salida_Exportar* salida = nullptr;
    int separador = 0;
    std::optional<int> version; // entry of VersionExcel
    bool numeros = false;
    std::optional<bool> titulos;               // otherwise those of the format
    std::optional<QStringList> desplazamiento; // X, Y, Z as typed
    Opciones_Nivel nivel;
};

// An option that the kind of file has no use for is a mistake of who gives it.
void Comprobar_Opciones(const Argumentos& a, const Salida_Exportar& salida)
{
    const auto solo = [&](const QString& opcion, bool vale) {
        if (a.Hay(opcion) && !vale)
            throw Error_Uso{"La opción --" + opcion + " no vale para el tipo " + salida.palabra};
    };
    solo("separador", salida.pide_separador);
    solo("version", salida.pide_version);
    solo("numeros", salida.pide_version);
}

bool Si_O_No(const QString& opcion, const QString& valor)
{
    if (valor != u"si" && valor != u"no")
        throw Error_Uso{"La opción --" + opcion + " es si o no: " + valor};
    return valor == u"si";
}

Pedido Leer_Pedido(const QStringList& palabras)
{
    const Argumentos a(
        palabras,
        {"formato", "tipo", "salida", "separador", "desplazamiento", "version", "titulos"},
        {"numeros", "anillo", "nivelacion"});
    Pedido p;
    p.id = Numero_De(a.Sueltos(1, 1).first(), "ID");
    p.formato = a.Obligada("formato");
    const QString tipo = a.Obligada("tipo");
    p.fichero = a.Obligada("salida");
    p.salida = &Salida_De_Palabra(tipo);
    Comprobar_Opciones(a, *p.salida);
    p.separador = Leer_Separador(a);
    if (a.Hay("version")) {
        const QString version = a.Opcion("version");
        p.version = int(Versiones_De_Libro().indexOf(version));
        if (p.version < 0)
            throw Error_Uso{"La versión es " + Enumerar(Versiones_De_Libro()) + ": " + version};
    }
    p.numeros = a.Hay("numeros");
    p.nivel = {a.Hay("anillo"), a.Hay("nivelacion")};
    if (a.Hay("titulos")) p.titulos = Si_O_No("titulos", a.Opcion("titulos"));
    if (p.fichero.isEmpty()) throw Error_Uso{"Falta el nombre del fichero de salida"};
    p.desplazamiento = Leer_Desplazamiento(a);
    return p;
}

// Answers for the dialogs of the road while it lives: the offsets and the output come from the words.
class Respuestas {
public:
    Respuestas(const Pedido& pedido, const Contexto& contexto, bool& hecho)
        : formatos(Peticiones_De_Formatos()), sesion(Peticiones_De_Sesion())
    {
        Offset_Exportar = pedido.desplazamiento.has_value();
        Peticiones_De_Sesion().Pedir_Desplazamientos = [&pedido](bool x, bool y, bool z,
                                                                 const QString& forma) {
            const QStringList& d = *pedido.desplazamiento;
            // A box that is disabled stays empty.
            Poner_Desplazamientos(x ? d[0] : QString(), y ? d[1] : QString(), z ? d[2] : QString(),
                                  forma);
            return true;
        };
        Peticiones_De_Formatos().Abrir_Exportar = [&](const Trabajo_Exportar& trabajo) {
            Dialogo_Exportar dialogo(trabajo);
            dialogo.Elegir_Opcion(pedido.salida->opcion);
            dialogo.caracter = pedido.separador;
            if (pedido.version) dialogo.Elegir_Version(*pedido.version);
            dialogo.numeros = pedido.numeros;
            if (!dialogo.activa[dialogo.opcion]) {
                contexto.Mensaje("Esta exportación todavía no está disponible en esta versión");
                return;
            }
            if (!dialogo.Proponer_Fichero(pedido.fichero)) return;
            Avance_Exportar avance;
            hecho = dialogo.Exportar(avance);
        };
    }
    ~Respuestas()
    {
        Peticiones_De_Formatos() = formatos;
        Peticiones_De_Sesion() = sesion;
    }
    Respuestas(const Respuestas&) = delete;
    Respuestas& operator=(const Respuestas&) = delete;

private:
    Peticiones_Formatos formatos;
    Peticiones_Sesion sesion;
};

std::unique_ptr<Formato_Existente> Modelo_De(const Sesion_Elegida& sesion, bool del_nivel,
                                             const Opciones_Nivel& casillas)
{
    if (!del_nivel) return std::make_unique<Formato_Existente>(sesion, "E");
    auto modelo = std::make_unique<Formato_Existente_Nivel>(sesion, "E");
    modelo->casillas = casillas;
    return modelo;
}

} // namespace

QString Uso_Exportar()
{
    return "exportar ID --formato NOMBRE --tipo " + Palabras_Tipo().join('|') +
           " --salida FICHERO [--separador " + Palabras_Separador().join('|') + "] [--version \"" +
           Versiones_De_Libro().join("\"|\"") +
           "\"] [--numeros] [--titulos si|no] [--desplazamiento X,Y,Z] [--anillo] [--nivelacion]";
}

int Orden_Exportar(const Contexto& c, const QStringList& palabras)
{
    const Pedido pedido = Leer_Pedido(palabras);
    const Instalacion instalacion(c);
    const Sesion_Elegida sesion = instalacion.Elegir_Sesion(pedido.id);
    if (!Comprobar_Hay_Registros(*Base_Datos, sesion.id)) return RECHAZADO;
    const bool del_nivel = Familia_De(sesion.maquina).serie == Serie::Nivel;
    if (!del_nivel && (pedido.nivel.anillo || pedido.nivel.nivelacion))
        throw Error_Uso{"Las opciones --anillo y --nivelacion son de las sesiones del nivel"};
    bool hecho = false;
    const Respuestas respuestas(pedido, c, hecho);
    const std::unique_ptr<Formato_Existente> modelo = Modelo_De(sesion, del_nivel, pedido.nivel);
    Formato_Existente& formato = *modelo;
    if (!formato.Ver()) return RECHAZADO;
    const qsizetype indice = formato.nombres.indexOf(pedido.formato);
    if (indice < 0) {
        c.Mensaje("No existe el formato " + pedido.formato +
                  " para la sesión; los hay: " + formato.nombres.join(", "));
        return RECHAZADO;
    }
    formato.Elegir(int(indice));
    // The titles of a locked format are not to be changed, here as in the dialog.
    if (pedido.titulos && *pedido.titulos != formato.cabeceras) {
        if (formato.bloqueado) {
            c.Mensaje("El formato " + pedido.formato +
                      " no es modificable: sus títulos no se cambian");
            return RECHAZADO;
        }
        formato.cabeceras = *pedido.titulos;
    }
    formato.Aceptar([] {});
    return hecho ? HECHO : RECHAZADO;
}
