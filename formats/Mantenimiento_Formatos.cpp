#include "formats/Mantenimiento_Formatos.h"

#include "core/Perfil.h"
#include "core/Posicion.h"
#include "formats/Formato_Nuevo.h"
#include "formats/Peticiones_Formatos.h"

Mantenimiento_Formatos::Mantenimiento_Formatos() : maquina(Clave_Estacion) {}

void Mantenimiento_Formatos::Cargar()
{
    nombres = Nombres_Formatos(*Base_Datos, maquina);
    const QString ultimo =
        Perfil::Leer(Fichero_Posicion(), "FORMATO" + maquina, "formato", QString(), ANCHO_NOMBRE);
    if (!ultimo.isEmpty()) Elegir(ultimo);
}

void Mantenimiento_Formatos::Cerrar() const
{
    try {
        // An empty value and none are the same to the next reading.
        Perfil::Escribir(Fichero_Posicion(), "FORMATO" + maquina, "formato",
                         nombre.isNull() ? QString("") : nombre);
    } catch (...) {
        Informe_Error("Se produjo un error al escribir en el fichero " + Fichero_Posicion(),
                      Error_En_Curso());
    }
}

void Mantenimiento_Formatos::Limpiar()
{
    listas.Vaciar();
    descripcion.clear();
    tipo.clear();
    es_modificable.clear();
    cabeceras = false;
    bloqueado = false;
}

void Mantenimiento_Formatos::Elegir(const QString& elegido)
{
    nombre = elegido;
    Limpiar();
    try {
        Leer_Formato();
    } catch (...) {
        Informe_Error("Se produjo un error al leer el formato", Error_En_Curso());
    }
}

void Mantenimiento_Formatos::Leer_Formato()
{
    const auto formato = Buscar_Formato(*Base_Datos, maquina, nombre);
    if (!formato) return;
    descripcion = formato->descripcion;
    es_modificable = formato->modificable ? "Si" : "No";
    bloqueado = !formato->modificable;
    cabeceras = formato->cabeceras;
    ope = formato->ope;

    Conjunto_Registros operaciones = Base_Datos->OpenRecordset("OPE");
    operaciones.Index("PrimaryKey");
    operaciones.Seek({ope});
    if (!operaciones.NoMatch()) tipo = operaciones.Texto("DESOPE");

    Leer_Campos(*formato);
}

void Mantenimiento_Formatos::Leer_Campos(const Formato& formato)
{
    Rellenar_IDs(formato.ids, ope);
    listas.elegidos = Campos_Formato(*Base_Datos, maquina, nombre);
    Ofrecer_Campos(*Base_Datos, maquina, listas, false, Generales::De_La_Operacion, ope);
}

bool Mantenimiento_Formatos::Cambiar(const Formato& formato)
{
    return Cambiar_Formato(*Base_Datos, formato);
}

void Mantenimiento_Formatos::Actualizar_Combo()
{
    nombres = Nombres_Formatos(*Base_Datos, maquina);
    Elegir(nombre);
}

void Mantenimiento_Formatos::Guardar()
{
    if (!Depura(nombre)) return;
    if (es_modificable.toUpper() != u"SI") {
        Interfaz_Actual().Pitar();
        return;
    }
    Formato formato;
    formato.maquina = maquina;
    formato.nombre = nombre;
    formato.descripcion = descripcion;
    formato.cabeceras = cabeceras;
    formato.campos = listas.elegidos;
    try {
        if (!Cambiar(formato))
            Interfaz_Actual().Mensaje("No se puede guardar; el formato '" + nombre +
                                      "' ha sido eliminado");
    } catch (...) {
        Informe_Error("Se produjo un error al guardar el formato", Error_En_Curso());
    }
}

void Mantenimiento_Formatos::Eliminar()
{
    if (nombre.isEmpty()) {
        Interfaz_Actual().Pitar();
        return;
    }
    try {
        if (!Eliminar_Formato(*Base_Datos, maquina, nombre)) return;
    } catch (...) {
        Informe_Error("Se produjo un error al eliminar el formato", Error_En_Curso());
        return;
    }
    nombre.clear();
    Limpiar();
    nombres = Nombres_Formatos(*Base_Datos, maquina);
}

void Mantenimiento_Formatos::Nuevo()
{
    Formato_Nuevo modelo(maquina);
    modelo.Crear();
    Peticiones_De_Formatos().Mostrar_Nuevo(modelo);
    Elegir_El_Nuevo(modelo.guardado);
}

void Mantenimiento_Formatos::Elegir_El_Nuevo(const QString& guardado)
{
    nombres = Nombres_Formatos(*Base_Datos, maquina);
    if (!guardado.isEmpty()) Elegir(guardado);
}
