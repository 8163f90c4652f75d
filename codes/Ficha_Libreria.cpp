#include "codes/Ficha_Libreria.h"

#include "core/ModEstTotal.h"

Ficha_Libreria::Ficha_Libreria(Serie serie_, const std::optional<Cabecera_Libreria>& editada)
    : nueva(!editada), serie(Librerias_De(serie_))
{
    titulo = nueva ? serie.titulo_nueva : serie.titulo_editar;
    if (!editada) return;
    codigo = editada->codigo;
    descripcion = editada->descripcion;
}

bool Ficha_Libreria::Aceptar()
{
    Interfaz& interfaz = Interfaz_Actual();
    codigo = Basico::Trim(codigo);
    descripcion = Basico::Trim(descripcion);
    if (codigo.isEmpty()) {
        interfaz.Mensaje(serie.sin_codigo, Icono::Exclamacion);
        return false;
    }
    if (descripcion.isEmpty()) {
        interfaz.Mensaje(serie.sin_descripcion, Icono::Exclamacion);
        return false;
    }
    try {
        if (!Guardar()) return false;
    } catch (...) {
        Informe_Error("Se produjo un error al guardar la librería", Error_En_Curso());
        return false;
    }
    guardada = codigo;
    return true;
}

bool Ficha_Libreria::Guardar()
{
    if (!nueva) {
        if (Describir_Libreria(*Base_Datos, serie, codigo, descripcion)) return true;
        Interfaz_Actual().Mensaje("No se puede guardar; la librería '" + codigo +
                                      "' ha sido eliminada",
                                  Icono::Exclamacion);
        return false;
    }
    if (Buscar_Libreria(*Base_Datos, serie, codigo)) {
        Interfaz_Actual().Mensaje(QString::fromUtf16(CODIGO_EXISTE), Icono::Exclamacion);
        return false;
    }
    Crear_Libreria(*Base_Datos, serie, codigo, descripcion);
    return true;
}
