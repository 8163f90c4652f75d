#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Sesion.h"
#include "core/ModEstTotal.h"
#include "export/Dialogo_Exportar.h"
#include "formats/Formato_Existente.h"
#include "session/Desplazamiento.h"
#include "session/Peticiones_Sesion.h"

namespace {

struct Pedido {
    int id;
    QString formato, tipo, fichero, separador;
    bool titulos;
    std::optional<QStringList> desplazamiento;  // X, Y, Z as typed
};

Pedido Leer_Pedido(const QStringList& palabras)
{
    const Argumentos a(palabras, {"formato", "tipo", "salida", "separador", "desplazamiento"},
                       {"titulos"});
    Pedido p;
    p.id = Numero_De(a.Sueltos(1, 1).first(), "ID");
    p.formato = a.Obligada("formato");
    p.tipo = a.Obligada("tipo");
    p.fichero = a.Obligada("salida");
    p.separador = a.Opcion("separador", "espacio");
    p.titulos = a.Hay("titulos");
    if (p.tipo != u"txf" && p.tipo != u"txt") throw Error_Uso{"El tipo es txf o txt: " + p.tipo};
    if (!QStringList{"espacio", "coma", "tabulacion"}.contains(p.separador))
        throw Error_Uso{"El separador es espacio, coma o tabulacion: " + p.separador};
    if (p.fichero.isEmpty()) throw Error_Uso{"Falta el nombre del fichero de salida"};
    if (a.Hay("desplazamiento")) {
        p.desplazamiento = a.Opcion("desplazamiento").split(u',');
        if (p.desplazamiento->size() != 3)
            throw Error_Uso{"El desplazamiento se escribe X,Y,Z: " + a.Opcion("desplazamiento")};
        for (const QString& eje : *p.desplazamiento)
            if (Teclear_Desplazamiento(eje) != eje)
                throw Error_Uso{"El desplazamiento \"" + eje + "\" no es un número con punto decimal"};
    }
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
            Poner_Desplazamientos(x ? d[0] : QString(), y ? d[1] : QString(), z ? d[2] : QString(), forma);
            return true;
        };
        Peticiones_De_Formatos().Abrir_Exportar = [&](const Trabajo_Exportar& trabajo) {
            Dialogo_Exportar dialogo(trabajo);
            dialogo.Elegir_Opcion(pedido.tipo == u"txf" ? Dialogo_Exportar::FORMATEADO
                                                        : Dialogo_Exportar::TEXTO);
            dialogo.caracter = pedido.separador == u"espacio" ? 0 : pedido.separador == u"coma" ? 1 : 2;
            if (!dialogo.activa[std::size_t(dialogo.opcion)]) {
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

int Orden_Exportar(const Contexto& c, const QStringList& palabras)
{
    const Pedido pedido = Leer_Pedido(palabras);
    const Instalacion instalacion(c);
    const Sesion_Elegida sesion = instalacion.Elegir_Sesion(pedido.id);
    if (!Comprobar_Hay_Registros(*Base_Datos, sesion.id)) return RECHAZADO;
    if (sesion.maquina == u"NV400") {
        c.Mensaje("La exportación del nivel todavía no está disponible en esta versión");
        return RECHAZADO;
    }
    bool hecho = false;
    const Respuestas respuestas(pedido, c, hecho);
    Formato_Existente formato(sesion, "E");
    if (!formato.Ver()) return RECHAZADO;
    const qsizetype indice = formato.nombres.indexOf(pedido.formato);
    if (indice < 0) {
        c.Mensaje("No existe el formato " + pedido.formato + " para la sesión; los hay: " +
                  formato.nombres.join(", "));
        return RECHAZADO;
    }
    formato.Elegir(int(indice));
    formato.cabeceras = pedido.titulos;
    formato.Aceptar([] {});
    return hecho ? HECHO : RECHAZADO;
}
