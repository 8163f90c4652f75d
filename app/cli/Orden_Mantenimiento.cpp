#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Sesion.h"
#include "core/Sesiones.h"

int Orden_Borrar(const Contexto& c, const QStringList& palabras)
{
    const int id = Numero_De(Argumentos(palabras, {}).Sueltos(1, 1).first(), "ID");
    const Instalacion instalacion(c);
    return Borrar_Sesion(instalacion.Elegir_Sesion(id)) ? HECHO : RECHAZADO;
}

int Orden_Compactar(const Contexto& c, const QStringList& palabras)
{
    Argumentos(palabras, {}).Sueltos(0, 0);
    const Instalacion instalacion(c);
    if (Compactar_BD()) return HECHO;
    c.Mensaje(
        "No se ha podido compactar la base de datos; otro programa la está usando o no se puede "
        "escribir en su carpeta");
    return RECHAZADO;
}
