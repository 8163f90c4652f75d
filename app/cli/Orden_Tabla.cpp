#include "app/cli/Ordenes_Export.h"

#include "core/Error_Ejecucion.h"
#include "core/Ficheros.h"
#include "export/Conversion_Tabla.h"
#include "export/excel/Fichero_Excel.h"
#include "session/Separadores.h"

#include <QFileInfo>

namespace {

QChar Separador_De(const QString& nombre)
{
    const int indice = Indice_Separador(nombre);
    if (indice < 0) throw Error_Uso{"Separador desconocido: " + nombre};
    return Separadores()[std::size_t(indice)].caracter;
}

Version_Excel Version_De(const QString& nombre)
{
    for (const Forma_Excel& forma : Formas_Excel())
        if (nombre == QStringView(forma.nombre)) return forma.version;
    throw Error_Uso{"Versión desconocida: " + nombre};
}

// An option that the file's kind has no use for is a mistake of who gives it.
void Rechazar_Opciones(const Argumentos& a, const QStringList& opciones, const QString& para)
{
    for (const QString& opcion : opciones)
        if (a.Hay(opcion)) throw Error_Uso{"La opción --" + opcion + " no vale para " + para};
}

Tabla_Separada Leer_Entrada(const QString& entrada, QChar separador)
{
    return Leer_Tabla_Separada(Ficheros::Leer(entrada), separador);
}

} // namespace

int Orden_Tabla(const Contexto&, const QStringList& palabras)
{
    const Argumentos a(palabras, {"separador", "version", "tabla"}, {"numeros"});
    const QStringList nombres = a.Sueltos(2, 2);
    const QString &entrada = nombres[0], &salida = nombres[1];
    const QString de = QFileInfo(entrada).suffix().toLower();
    const QString a_que = QFileInfo(salida).suffix().toLower();
    const bool a_libro = a_que == u"xls", a_base = a_que == u"mdb";
    if (de == u"xls") {
        Rechazar_Opciones(a, {"separador", "version", "tabla", "numeros"}, "leer un libro");
        if (a_libro || a_base) throw Error_Uso{"De un libro sólo se obtiene un texto"};
        Ficheros::Escribir(salida, Texto_De_Hoja(Abrir_Libro(entrada).Hoja(0)));
        return HECHO;
    }
    const QChar separador = Separador_De(a.Opcion("separador", "tabulacion"));
    if (a_libro) {
        Rechazar_Opciones(a, {"tabla"}, "un libro");
        const Version_Excel version = Version_De(a.Opcion("version", "Excel 8.0"));
        const Tabla_Separada tabla = Leer_Entrada(entrada, separador);
        Guardar_Libro(Libro_De_Tabla(tabla, a.Hay("numeros")), salida, version);
        return HECHO;
    }
    if (a_base) {
        Rechazar_Opciones(a, {"version", "numeros"}, "una base de datos");
        Base_De_Tabla(Leer_Entrada(entrada, separador), salida, a.Opcion("tabla", "Datos"));
        return HECHO;
    }
    throw Error_Uso{"El fichero de salida debe ser .xls o .mdb, o el de entrada .xls"};
}
