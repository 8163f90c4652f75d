#include "formats/Formato_Existente.h"

#include "formats/Formato_Nuevo.h"
#include "session/Desplazamiento.h"
#include "session/Peticiones_Sesion.h"

Formato_Existente::Formato_Existente(const Sesion_Elegida& s, const QString& d)
    : titulo("Formatos Disponibles para [" + s.wope + "]"), sesion(s), destino(d)
{
}

bool Formato_Existente::Ver()
{
    nombres = Nombres_Formatos(*Base_Datos, sesion.maquina, sesion.ope);
    indice = -1;
    listas.Vaciar();
    descripcion.clear();
    if (!nombres.isEmpty()) return true;
    Interfaz_Actual().Mensaje("No hay formatos disponibles", Icono::Informacion);
    return false;
}

void Formato_Existente::Elegir(int entrada)
{
    indice = entrada;
    listas.Vaciar();
    if (indice < 0) return;
    try {
        Leer_Formato(nombres[indice]);
    } catch (...) {
        Informe_Error("Se produjo un error al leer el formato", Error_En_Curso());
    }
}

void Formato_Existente::Leer_Formato(const QString& nombre)
{
    const auto formato = Buscar_Formato(*Base_Datos, sesion.maquina, nombre);
    if (!formato) return;
    descripcion = formato->descripcion;
    bloqueado = !formato->modificable;
    check2_visible = formato->modificable;
    label2_visible = !formato->modificable;
    if (label2_visible) label2 = "No modificable";
    cabeceras = formato->cabeceras;

    Sacar_IDs(*Base_Datos, sesion, false);
    if (Comprobar_IDs(formato->ids, sesion.ope))
        Interfaz_Actual().Mensaje(Aviso_Campos(nombre), Icono::Informacion);
    listas.elegidos = Campos_Formato(*Base_Datos, sesion.maquina, nombre);
    Ofrecer_Campos(*Base_Datos, sesion.maquina, listas, false, Generales::De_La_Familia,
                   sesion.ope);
}

bool Formato_Existente::Aceptar(const std::function<void()>& ocultar)
{
    if (indice < 0) {
        Interfaz_Actual().Pitar();
        return false;
    }
    try {
        if (!Preparar_Exportacion(sesion.maquina, listas.elegidos, cabeceras)) return true;
    } catch (...) {
        Informe_Error("Se produjo un error al preparar la exportación", Error_En_Curso());
        return false;
    }
    ocultar();
    const Trabajo_Exportar trabajo{sesion.id, sesion.maquina, sesion.ope, nombres[indice]};
    if (destino == u"I")
        Peticiones_De_Formatos().Abrir_Imprimir(trabajo);
    else
        Peticiones_De_Formatos().Abrir_Exportar(trabajo);
    return true;
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

namespace {

// What every way from a session into a format dialog begins with.
bool Hay_Que_Exportar(const std::optional<Sesion_Elegida>& sesion)
{
    if (!sesion) {
        Interfaz_Actual().Pitar();
        return false;
    }
    return Comprobar_Hay_Registros(*Base_Datos, sesion->id);
}

// An error on the way ends it with the report.
template <typename Camino> void Informando(Camino&& camino)
{
    try {
        camino();
    } catch (...) {
        Informe_Error("Se produjo un error al leer los datos de la sesión", Error_En_Curso());
    }
}

} // namespace

void Exporta_o_Imprime_Formato_Existente(const std::optional<Sesion_Elegida>& sesion,
                                         const QString& destino)
{
    Informando([&] {
        if (!Hay_Que_Exportar(sesion)) return;
        if (destino == u"E") Tipo_Ficheros_Puntos = Es_Fichero_De_Puntos(sesion->wope);
        if (sesion->maquina == u"NV400") {
            Peticiones_De_Formatos().Mostrar_Existente_NV400(*sesion, destino);
            return;
        }
        Formato_Existente modelo(*sesion, destino);
        if (modelo.Ver()) Peticiones_De_Formatos().Mostrar_Existente(modelo);
    });
}

void Exporta_Formato_Nuevo(const std::optional<Sesion_Elegida>& sesion)
{
    Informando([&] {
        if (!Hay_Que_Exportar(sesion)) return;
        if (sesion->maquina == u"NV400") {
            Peticiones_De_Formatos().Mostrar_Nuevo_NV400(*sesion);
            return;
        }
        Formato_Nuevo modelo(sesion->maquina, sesion);
        modelo.Crear();
        Peticiones_De_Formatos().Mostrar_Nuevo(modelo);
    });
}
