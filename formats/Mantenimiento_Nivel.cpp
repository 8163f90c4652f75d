#include "formats/Mantenimiento_Nivel.h"

#include "formats/Formato_Nuevo_Nivel.h"
#include "formats/Peticiones_Formatos.h"

void Mantenimiento_Nivel::Leer_Campos(const Formato& formato)
{
    mitades.Leer(*Base_Datos, formato.maquina, formato.nombre, listas);
}

void Mantenimiento_Nivel::Elegir_Mitad(Mitad_Nivel mitad)
{
    try {
        if (!nombre.isEmpty() && !bloqueado && Buscar_Formato(*Base_Datos, Maquina(), nombre))
            Guardar_Mitad(*Base_Datos, Maquina(), nombre, mitades.en_vista, listas.elegidos);
    } catch (...) {
        Informe_Error("Se produjo un error al guardar el formato", Error_En_Curso());
    }
    mitades.Mostrar(mitad, listas);
}

bool Mantenimiento_Nivel::Cambiar(const Formato& formato)
{
    return Cambiar_Formato_Nivel(*Base_Datos, formato, mitades.Elegidos(listas));
}

void Mantenimiento_Nivel::Nuevo()
{
    Formato_Nuevo_Nivel modelo(Maquina());
    modelo.Crear();
    Peticiones_De_Formatos().Mostrar_Nuevo_NV400(modelo);
    Elegir_El_Nuevo(modelo.guardado);
}
