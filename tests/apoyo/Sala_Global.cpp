#include "tests/apoyo/Sala_Global.h"

#include "core/Ayuda.h"
#include "core/Estado_Global.h"
#include "core/ModEstTotal.h"

template <class T> void Sala_Global::Guardar(T& global, T inicial)
{
    devolver.push_back(
        [&global, antes = std::exchange(global, std::move(inicial))] { global = antes; });
}

Sala_Global::Sala_Global()
{
    for (QString* g : {&Ruta_Aplicacion, &Fichero_Log_Inicio, &Ruta_MDB, &Fichero_MDB,
                       &Fichero_Ayuda, &Clave_Estacion, &Nombre_Estacion, &Puerto, &Velocidad,
                       &Bits_Datos, &Paridad, &Bits_Parada, &Hard, &Vel_Puerto, &Formato_Coord})
        Guardar(*g, QString());
    for (QString* g : {&Desp_X, &Desp_Y, &Desp_Z})
        Guardar(*g, QStringLiteral("0"));
    for (bool* g : {&Modelo_Fijo, &Ayuda_Visible, &Ayuda_Recuerde, &Offset_Cargas, &Offset_Exportar,
                    &Mostrar_Cabeceras, &Proceso_Cancelado})
        Guardar(*g, false);
    Guardar(Base_Datos, Base_Global());
    Guardar(datosexport, QStringList(QList<QString>(MAX_IDS)));
    Guardar(Paso_Ayuda, 1);
    for (const Estado_Global::Pieza& pieza : Estado_Global::Piezas())
        devolver.push_back(pieza.recordar());
    conocidas = Estado_Global::Piezas().size();
}

Sala_Global::~Sala_Global()
{
    for (auto it = devolver.rbegin(); it != devolver.rend(); ++it)
        (*it)();
    // What was used for the first time meanwhile has no former value.
    const auto& piezas = Estado_Global::Piezas();
    for (std::size_t i = conocidas; i < piezas.size(); ++i)
        piezas[i].reiniciar();
}
