#include "app/cli/Camino_Formato.h"
#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Export.h"
#include "app/cli/Ordenes_Sesion.h"
#include "core/ModEstTotal.h"
#include "export/Dialogo_Exportar.h"
#include "session/Separadores.h"

namespace {

QStringList Palabras_Tipo()
{
    QStringList palabras;
    for (const Salida_Exportar* salida : Salidas_Por_Palabra())
        palabras << salida->palabra;
    return palabras;
}

QStringList Palabras_Separador()
{
    QStringList palabras;
    for (const Fila_Separador& fila : Separadores())
        palabras << fila.palabra;
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
    const QString separador = a.Opcion("separador", Separadores().front().palabra);
    p.separador = Indice_Separador(separador);
    if (p.separador < 0)
        throw Error_Uso{"El separador es " + Enumerar(Palabras_Separador()) + ": " + separador};
    if (p.fichero.isEmpty()) throw Error_Uso{"Falta el nombre del fichero de salida"};
    p.desplazamiento = Leer_Desplazamiento(a);
    return p;
}

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
    const Serie serie = Familia_De(sesion.maquina).serie;
    if (serie == Serie::Nivel && !pedido.salida->escribir_nivel) {
        c.Mensaje("La exportación del nivel todavía no está disponible en esta versión");
        return RECHAZADO;
    }
    bool hecho = false;
    Camino_Formato camino{sesion, pedido.formato, "E", pedido.desplazamiento};
    camino.cambiar = [&](Formato_Existente& formato) { formato.cabeceras = pedido.titulos; };
    camino.abrir = [&](const Trabajo_Exportar& trabajo) {
        Dialogo_Exportar dialogo(trabajo);
        dialogo.Elegir_Opcion(pedido.salida->opcion);
        dialogo.caracter = pedido.separador;
        if (!dialogo.activa[dialogo.opcion]) {
            c.Mensaje("Esta exportación todavía no está disponible en esta versión");
            return;
        }
        if (!dialogo.Proponer_Fichero(pedido.fichero)) return;
        Avance_Exportar avance;
        hecho = dialogo.Exportar(avance);
    };
    return Recorrer(camino, c) && hecho ? HECHO : RECHAZADO;
}
