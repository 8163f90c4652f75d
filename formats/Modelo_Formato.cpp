#include "formats/Modelo_Formato.h"

#include "session/Desplazamiento.h"
#include "session/Peticiones_Sesion.h"

Modelo_Formato::Paso Modelo_Formato::Preparar(const QString& maquina) const
{
    try {
        return Preparar_Exportacion(maquina, listas.elegidos, cabeceras) ? Paso::Sigue
                                                                         : Paso::Cancelado;
    } catch (...) {
        Informe_Error("Se produjo un error al preparar la exportación", Error_En_Curso());
        return Paso::Fallo;
    }
}

bool Preparar_Exportacion(const QString& maquina, const QStringList& campos, bool cabeceras)
{
    Poner_Campos_Exportar(campos);
    Incluir_Cabeceras = cabeceras;
    Quitar_Desplazamientos();
    bool hay_x = false, hay_y = false, hay_z = false;
    for (const QString& campo : campos)
        Comprobar_Marcas_Coordenadas(*Base_Datos, maquina, campo, hay_x, hay_y, hay_z);
    if (!Offset_Exportar || !(hay_x || hay_y || hay_z)) return true;
    return Peticiones_De_Sesion().Pedir_Desplazamientos(hay_x, hay_y, hay_z,
                                                        QString::fromUtf16(FORMATO_COORDENADA));
}
