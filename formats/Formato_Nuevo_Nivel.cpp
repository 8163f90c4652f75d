#include "formats/Formato_Nuevo_Nivel.h"

// Every line of the level can hold all the fields of its half, whatever the session.
void Formato_Nuevo_Nivel::Llenar_Listas()
{
    mitades.Leer(*Base_Datos, Maquina(), {}, listas);
}

bool Formato_Nuevo_Nivel::Hay_Campos() const
{
    const Campos_Nivel campos = mitades.Elegidos(listas);
    return !campos[0].isEmpty() || !campos[1].isEmpty();
}

void Formato_Nuevo_Nivel::Almacenar(const Formato& formato, bool nuevo)
{
    // A level format names no record kinds: its fields are those of any measurement.
    Formato sin_ids = formato;
    sin_ids.ids.clear();
    Guardar_Formato_Nivel(*Base_Datos, sin_ids, mitades.Elegidos(listas), nuevo);
}
