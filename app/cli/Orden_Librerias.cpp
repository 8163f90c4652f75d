#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Codigos.h"
#include "codes/Fichero_Libreria.h"
#include "codes/Librerias.h"
#include "core/ModEstTotal.h"

namespace {

QString Letras()
{
    QStringList letras;
    for (const Serie_Librerias& s : Series_De_Librerias())
        letras << s.letra;
    return letras.join(" o ");
}

// The series that an option names. @throws Error_Uso for another word
const Serie_Librerias& Serie_De(const QString& letra)
{
    for (const Serie_Librerias& s : Series_De_Librerias())
        if (s.letra == letra) return s;
    throw Error_Uso{"La serie es " + Letras()};
}

// A library that exists. @throws Orden_Rechazada when there is none of that name
Cabecera_Libreria Elegir_Libreria(const Contexto& c, const Serie_Librerias& serie,
                                  const QString& nombre)
{
    if (const auto libreria = Buscar_Libreria(*Base_Datos, serie, nombre)) return *libreria;
    c.Mensaje("No existe la librería " + nombre + " de la serie " + serie.letra +
              " (véase miraldos-cli librerias)");
    throw Orden_Rechazada{};
}

} // namespace

int Orden_Librerias(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"serie"});
    a.Sueltos(0, 0);
    const Serie_Librerias* const sola = a.Hay("serie") ? &Serie_De(a.Opcion("serie")) : nullptr;
    const Instalacion instalacion(c);
    c.Fila({"Serie", "Código", "Descripción", "Nº Códigos"});
    for (const Serie_Librerias& s : Series_De_Librerias()) {
        if (sola && sola != &s) continue;
        const QList<Cabecera_Libreria> lista = Listar_Librerias(*Base_Datos, s);
        for (const Cabecera_Libreria& l : lista)
            c.Fila({s.letra, l.codigo, l.descripcion, QString::number(l.codigos)});
    }
    return HECHO;
}

int Orden_Libreria_Ver(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"serie"});
    const QString nombre = a.Sueltos(1, 1).first();
    const Serie_Librerias& serie = Serie_De(a.Obligada("serie"));
    const Instalacion instalacion(c);
    const Cabecera_Libreria libreria = Elegir_Libreria(c, serie, nombre);
    const Lista_De_Codigos codigos = Leer_Codigos(*Base_Datos, serie, libreria.codigo);
    c.Fila(serie.columnas_ver);
    for (qsizetype i = 0; i < codigos.size(); ++i)
        c.Fila(serie.celdas_ver(int(i) + 1, codigos[i]));
    return HECHO;
}

int Orden_Libreria_Guardar(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"serie", "descripcion", "fichero"});
    const QString nombre = a.Sueltos(1, 1).first();
    const Serie_Librerias& serie = Serie_De(a.Obligada("serie"));
    const QString descripcion = a.Obligada("descripcion");
    const QString fichero = a.Obligada("fichero");
    const Instalacion instalacion(c);
    return Importar_Libreria(serie, nombre, descripcion, fichero) ? HECHO : RECHAZADO;
}

int Orden_Libreria_Exportar(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"serie", "salida"});
    const QString nombre = a.Sueltos(1, 1).first();
    const Serie_Librerias& serie = Serie_De(a.Obligada("serie"));
    const QString salida = a.Obligada("salida");
    const Instalacion instalacion(c);
    const Cabecera_Libreria libreria = Elegir_Libreria(c, serie, nombre);
    const Lista_De_Codigos codigos = Leer_Codigos(*Base_Datos, serie, libreria.codigo);
    return Exportar_Libreria(serie, codigos, salida) ? HECHO : RECHAZADO;
}

int Orden_Libreria_Borrar(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"serie"});
    const QString nombre = a.Sueltos(1, 1).first();
    const Serie_Librerias& serie = Serie_De(a.Obligada("serie"));
    const Instalacion instalacion(c);
    const Cabecera_Libreria libreria = Elegir_Libreria(c, serie, nombre);
    return Borrar_Libreria(serie, libreria.codigo) ? HECHO : RECHAZADO;
}
