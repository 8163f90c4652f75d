#include "formats/Formato_Existente.h"

#include "core/Familia.h"
#include "formats/Formato_Existente_Nivel.h"
#include "formats/Formato_Nuevo.h"
#include "formats/Formato_Nuevo_Nivel.h"

Formato_Existente::Formato_Existente(const Sesion_Elegida& s, const QString& d)
    : sesion(s), destino(d)
{
    titulo = "Formatos Disponibles para [" + s.wope + "]";
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
    Leer_Campos(nombre);
}

void Formato_Existente::Leer_Campos(const QString& nombre)
{
    listas.elegidos = Campos_Formato(*Base_Datos, sesion.maquina, nombre);
    Ofrecer_Campos(*Base_Datos, sesion.maquina, listas, false, Generales::De_La_Familia,
                   sesion.ope);
}

Trabajo_Exportar Formato_Existente::Trabajo() const
{
    return {sesion.id, sesion.maquina, sesion.ope, nombres[indice]};
}

bool Formato_Existente::Aceptar(const std::function<void()>& ocultar)
{
    if (indice < 0) {
        Interfaz_Actual().Pitar();
        return false;
    }
    const Paso paso = Preparar(sesion.maquina);
    if (paso != Paso::Sigue) return paso == Paso::Cancelado;
    ocultar();
    const Trabajo_Exportar trabajo = Trabajo();
    if (destino == u"I")
        Peticiones_De_Formatos().Abrir_Imprimir(trabajo);
    else
        Peticiones_De_Formatos().Abrir_Exportar(trabajo);
    return true;
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

// The level's formats have two halves, and dialogs of their own.
bool Es_Del_Nivel(const Sesion_Elegida& sesion)
{
    return Familia_De(sesion.maquina).serie == Serie::Nivel;
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
        if (Es_Del_Nivel(*sesion)) {
            Formato_Existente_Nivel modelo(*sesion, destino);
            if (modelo.Ver()) Peticiones_De_Formatos().Mostrar_Existente_NV400(modelo);
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
        if (Es_Del_Nivel(*sesion)) {
            Formato_Nuevo_Nivel modelo(sesion->maquina, sesion);
            modelo.Crear();
            Peticiones_De_Formatos().Mostrar_Nuevo_NV400(modelo);
            return;
        }
        Formato_Nuevo modelo(sesion->maquina, sesion);
        modelo.Crear();
        Peticiones_De_Formatos().Mostrar_Nuevo(modelo);
    });
}
