#include "app/cli/Camino_Formato.h"
#include "app/cli/Instalacion.h"
#include "app/cli/Opciones_Comunes.h"
#include "app/cli/Ordenes_Export.h"
#include "export/impresion/Dialogo_Imprimir.h"
#include "export/ui/Pintor_Pagina.h"

#include <QFile>

namespace {

struct Pedido {
    Camino_Formato camino;
    int id = 0;
    QString fichero;
    Parametros_Hoja hoja;
    Opciones_Exportar opciones;
};

Pedido Leer_Pedido(const Argumentos& a)
{
    Pedido p;
    p.id = Numero_De(a.Sueltos(1, 1).first(), "ID");
    p.camino.formato = a.Obligada("formato");
    p.camino.destino = "I";
    p.camino.desplazamiento = Leer_Desplazamiento(a);
    p.fichero = a.Obligada("salida");
    if (!p.fichero.endsWith(u".rtf", Qt::CaseInsensitive) &&
        !p.fichero.endsWith(u".pdf", Qt::CaseInsensitive))
        throw Error_Uso{"El fichero de salida debe ser .rtf o .pdf: " + p.fichero};
    Parametros_Hoja& h = p.hoja;
    h.con_titulo = a.Hay("titulo");
    h.titulo = a.Opcion("titulo");
    h.con_subtitulo = a.Hay("subtitulo");
    h.subtitulo = a.Opcion("subtitulo");
    if (a.Hay("nombre") && !a.Hay("trabajo")) throw Error_Uso{"Debe introducir el Trabajo"};
    if (a.Hay("trabajo")) {
        h.trabajo = Datos_Trabajo{a.Opcion("trabajo"), a.Opcion("nombre")};
        if (h.trabajo->trabajo.trimmed().isEmpty()) throw Error_Uso{"Debe introducir el Trabajo"};
    }
    h.cabeceras = a.Hay("cabeceras");
    h.centrar = a.Hay("centrar");
    if (a.Hay("anchura")) h.anchura = a.Numero("anchura");
    if (h.anchura <= 0) throw Error_Uso{"La anchura de página debe ser mayor que cero"};
    if (a.Hay("columnas")) h.columnas = a.Opcion("columnas").split(u',');
    p.opciones.nivel = {a.Hay("anillo"), a.Hay("nivelacion")};
    return p;
}

// Titles that are left empty, or out, stay the fields' own.
QStringList Completar(QStringList columnas, const QStringList& campos)
{
    if (columnas.size() > campos.size())
        throw Error_Uso{QStringLiteral("Hay %1 columnas, y se dan %2 nombres")
                            .arg(campos.size())
                            .arg(columnas.size())};
    columnas.resize(campos.size());
    for (qsizetype i = 0; i < campos.size(); ++i)
        if (columnas[i].isEmpty()) columnas[i] = campos[i];
    return columnas;
}

} // namespace

QString Uso_Imprimir()
{
    return "imprimir ID --formato NOMBRE --salida FICHERO.rtf|FICHERO.pdf [--titulo T] "
           "[--subtitulo T] [--trabajo T [--nombre N]] [--cabeceras] [--centrar] [--anchura N] "
           "[--columnas \"T1,T2,...\"] [--anillo] [--nivelacion] [--desplazamiento X,Y,Z]";
}

int Orden_Imprimir(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras,
                       {"formato", "salida", "titulo", "subtitulo", "trabajo", "nombre", "anchura",
                        "columnas", "desplazamiento"},
                       {"cabeceras", "centrar", "anillo", "nivelacion"});
    Pedido pedido = Leer_Pedido(a);
    const Instalacion instalacion(c);
    pedido.camino.sesion = instalacion.Elegir_Sesion(pedido.id);
    Peticiones_De_Impresion().Guardar_PDF = Guardar_PDF;
    bool hecho = false;
    pedido.camino.abrir = [&](const Trabajo_Exportar& trabajo) {
        if (QFile::exists(pedido.fichero) &&
            !Interfaz_Actual().Preguntar("El fichero ya existe, ¿ Desea reemplazarlo?",
                                         Icono::Exclamacion))
            return;
        Avance_Exportar callado;
        Dialogo_Imprimir dialogo(trabajo, pedido.opciones, callado);
        if (!pedido.hoja.columnas.isEmpty())
            pedido.hoja.columnas = Completar(pedido.hoja.columnas, dialogo.Columnas());
        dialogo.parametros = pedido.hoja;
        dialogo.Guardar(pedido.fichero);
        hecho = true;
    };
    return Recorrer(pedido.camino, c) && hecho ? HECHO : RECHAZADO;
}
