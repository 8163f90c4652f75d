#include "formats/Nombre_Formato.h"

#include "core/Basico.h"
#include "core/Error_Ejecucion.h"
#include "core/Interfaz.h"

bool Depura(const QString& nombre)
{
    if (!Basico::Trim(nombre).isEmpty()) return true;
    Interfaz_Actual().Mensaje("El Nombre del formato no puede quedar en blanco!!",
                              Icono::Informacion);
    return false;
}

QString Literal_Formato(const QString& nombre)
{
    if (nombre.contains(u'\'')) throw Error_Ejecucion(3075);
    return u'\'' + nombre + u'\'';
}
