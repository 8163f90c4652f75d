#include "codes/Mantenimiento_B.h"

#include "codes/Codigos.h"
#include "codes/Ficha_Codigo.h"
#include "codes/Peticiones_Codigos.h"
#include "core/ModEstTotal.h"

Mantenimiento_B::Mantenimiento_B() : Mantenimiento_Librerias(Serie::B) {}

QString Mantenimiento_B::SQL_Codigos() const
{
    return "SELECT SECUENCIA,CODIGO,(SELECT TAB2.DESCRIPCION FROM TAB2  WHERE TIPO = 'ENTIDADES' "
           "AND INDICE = L5.ENTIDAD) as DESCRIPCION, ENTIDAD, CAPA  FROM Lib800_2 AS l5 WHERE "
           "Codlibreria = '" +
           Reemplazar(Codigo(), "'", "''") + "'  ORDER BY SECUENCIA";
}

void Mantenimiento_B::Con_Ficha_De_Codigo(const std::optional<Codigo_Libreria>& editado)
{
    Ficha_Codigo ficha(Codigo(), editado);
    Peticiones_De_Codigos().Mostrar_Codigo(ficha);
    Actualizar();
    for (int i = 0; i < codigos.size(); ++i)
        if (codigos[i].secuencia == ficha.Guardado()) fila = i;
}

void Mantenimiento_B::Nuevo_Codigo()
{
    if (Hay_Libreria()) Con_Ficha_De_Codigo({});
}

void Mantenimiento_B::Editar_Codigo()
{
    if (fila < 0 || fila >= codigos.size())
        Interfaz_Actual().Pitar();
    else
        Con_Ficha_De_Codigo(codigos[fila]);
}

void Mantenimiento_B::Eliminar_Codigo()
{
    if (fila < 0 || fila >= codigos.size()) {
        Interfaz_Actual().Pitar();
        return;
    }
    if (!Interfaz_Actual().Preguntar("¿Desea eliminar el código seleccionado?")) return;
    try {
        ::Eliminar_Codigo(*Base_Datos, Codigo(), codigos[fila].secuencia);
        Actualizar();
    } catch (...) {
        Informe_Error("Se produjo un error al eliminar el código", Error_En_Curso());
    }
}

void Mantenimiento_B::Ordenar()
{
    if (!Hay_Libreria()) return;
    Lista_De_Codigos ordenados = codigos;
    Ordenar_Codigos(ordenados);
    // The order can't be taken back: what was typed in is stored already.
    if (ordenados == codigos ||
        !Interfaz_Actual().Preguntar("¿ Desea ordenar los códigos de la librería ?"))
        return;
    try {
        Guardar_Codigos(*Base_Datos, Serie_Suya(), Codigo(), ordenados);
        Actualizar();
        fila = 0;
    } catch (...) {
        Informe_Error("Se produjo un error al guardar la librería", Error_En_Curso());
    }
}
