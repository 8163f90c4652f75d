#include "app/cli/Interfaz_Consola.h"

#include "core/Error_Ejecucion.h"

#include <cstdlib>

namespace {

// Boxes break their lines with CR, CR LF or LF.
QString En_Lineas(QString texto)
{
    return texto.replace("\r\n", "\n").replace(u'\r', u'\n');
}

} // namespace

Interfaz_Consola::Interfaz_Consola(const Contexto& c) : contexto(c), anterior(Poner_Interfaz(this))
{
}

Interfaz_Consola::~Interfaz_Consola()
{
    Poner_Interfaz(anterior);
}

void Interfaz_Consola::Mensaje(const QString& texto, Icono, const QString& titulo)
{
    contexto.Mensaje((titulo.isEmpty() ? QString() : titulo + ": ") + En_Lineas(texto));
}

bool Interfaz_Consola::Preguntar(const QString& texto, Icono icono, const QString& titulo)
{
    Mensaje(texto + (contexto.si ? " Sí" : " No (use --si para aceptar)"), icono, titulo);
    return contexto.si;
}

std::optional<QString> Interfaz_Consola::Pedir_Texto(const QString& titulo, const QString& texto,
                                                     const QString&)
{
    Mensaje(texto + ": no se puede preguntar desde la consola", Icono::Ninguno, titulo);
    return std::nullopt;
}

std::optional<Fichero_Elegido> Interfaz_Consola::Pedir_Fichero(const Peticion_Fichero& peticion)
{
    if (ficheros) return ficheros(peticion);
    throw Error_Ejecucion(52, peticion.titulo + ": no se puede elegir un fichero desde la consola");
}

void Interfaz_Consola::Proceso_Abrir(const QString& etiqueta, qint64 maximo)
{
    Proceso_Etiqueta(etiqueta, maximo);
}

void Interfaz_Consola::Proceso_Etiqueta(const QString& etiqueta, qint64)
{
    contexto.Mensaje(etiqueta);
}

void Interfaz_Consola::Arrancar(const QString& programa, const QStringList&)
{
    throw Error_Ejecucion(53, "No se arranca " + programa + " desde la consola");
}

void Interfaz_Consola::Terminar(int estado)
{
    contexto.salida->close();
    contexto.errores->close();
    std::exit(estado);
}
