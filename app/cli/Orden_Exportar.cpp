#include "app/cli/Instalacion.h"
#include "app/cli/Opciones_Comunes.h"
#include "app/cli/Ordenes_Export.h"
#include "app/cli/Ordenes_Sesion.h"
#include "core/ModEstTotal.h"
#include "export/Dialogo_Exportar.h"
#include "formats/Formato_Existente.h"
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
    int id;
    QString formato, fichero;
    const Salida_Exportar* salida;
    int separador;
    bool titulos;
    std::optional<QStringList> desplazamiento; // X, Y, Z as typed
};

Pedido Leer_Pedido(const QStringList& palabras)
{
    const Argumentos a(palabras, {"formato", "tipo", "salida", "separador", "desplazamiento"},
                       {"titulos"});
    Pedido p;
    p.id = Numero_De(a.Sueltos(1, 1).first(), "ID");
    p.formato = a.Obligada("formato");
    const QString tipo = a.Obligada("tipo");
    p.fichero = a.Obligada("salida");
    p.titulos = a.Hay("titulos");
    p.salida = &Salida_De_Palabra(tipo);
    p.separador = Leer_Separador(a);
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

} // namespace

QString Uso_Exportar()
{
    return "exportar ID --formato NOMBRE --tipo " + Palabras_Tipo().join('|') +
           " --salida FICHERO [--separador " + Palabras_Separador().join('|') +
           "] [--titulos] [--desplazamiento X,Y,Z]";
}

int Orden_Exportar(const Contexto& c, const QStringList& palabras)
{
    const Pedido pedido = Leer_Pedido(palabras);
    const Instalacion instalacion(c);
    const Sesion_Elegida sesion = instalacion.Elegir_Sesion(pedido.id);
    if (!Comprobar_Hay_Registros(*Base_Datos, sesion.id)) return RECHAZADO;
    const Serie serie = Familia_De(sesion.maquina).serie;
    if (serie == Serie::Nivel && !pedido.salida->escribir_nivel) {
        c.Mensaje("La exportación del nivel todavía no está disponible en esta versión");
        return RECHAZADO;
    }
    bool hecho = false;
    const Respuestas respuestas(pedido, c, hecho);
    Formato_Existente formato(sesion, "E");
    if (!formato.Ver()) return RECHAZADO;
    const qsizetype indice = formato.nombres.indexOf(pedido.formato);
    if (indice < 0) {
        c.Mensaje("No existe el formato " + pedido.formato +
                  " para la sesión; los hay: " + formato.nombres.join(", "));
        return RECHAZADO;
    }
    formato.Elegir(int(indice));
    formato.cabeceras = pedido.titulos;
    formato.Aceptar([] {});
    return hecho ? HECHO : RECHAZADO;
}
