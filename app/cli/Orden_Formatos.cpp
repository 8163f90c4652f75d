#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Sesion.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "formats/Formato_Nuevo_Nivel.h"

namespace {

QStringList Nombres_De(const QString& texto)
{
    QStringList nombres;
    for (const QString& nombre : texto.split(u','))
        nombres << Basico::Trim(nombre);
    return nombres;
}

// Moves the fields of those names to the chosen ones. @return false, the reason told, without one
bool Elegir_Campos(const Contexto& c, Dos_Listas& listas, const QStringList& campos)
{
    for (const QString& campo : campos) {
        const qsizetype lugar = listas.disponibles.indexOf(campo);
        if (lugar < 0) {
            c.Mensaje("El campo \"" + campo +
                      "\" no está disponible; los hay: " + listas.disponibles.join(", "));
            return false;
        }
        listas.Agregar({int(lugar)});
    }
    return true;
}

int Guardar_Nuevo(Formato_Nuevo& formato)
{
    return formato.Aceptar([] {}) ? HECHO : RECHAZADO;
}

// What all families give a format; the kind first, since choosing it empties the rest.
void Preparar_Nuevo(Formato_Nuevo& formato, const Argumentos& a, int ope)
{
    formato.Crear();
    formato.Elegir_Tipo(
        int(Buscar_Trozo(formato.tag_tipos, QString::number(ope), QChar(SEP_LISTA))) - 1);
    formato.Escribir_Nombre(a.Obligada("nombre"));
    formato.descripcion = a.Opcion("descripcion");
    formato.cabeceras = a.Hay("titulos");
}

int Crear_Del_Nivel(const Contexto& c, const Argumentos& a, const QString& maquina, int ope)
{
    Formato_Nuevo_Nivel formato(maquina);
    Preparar_Nuevo(formato, a, ope);
    const std::pair<const char*, Mitad_Nivel> mitades[] = {{"cabecera", Mitad_Nivel::Cabecera},
                                                           {"campos", Mitad_Nivel::Detalle}};
    for (const auto& [opcion, mitad] : mitades) {
        if (!a.Hay(opcion)) continue;
        formato.Elegir_Mitad(mitad);
        if (!Elegir_Campos(c, formato.listas, Nombres_De(a.Opcion(opcion)))) return RECHAZADO;
    }
    return Guardar_Nuevo(formato);
}

} // namespace

int Orden_Formato_Nuevo(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"maquina", "ope", "nombre", "cabecera", "campos", "descripcion"},
                       {"titulos"});
    a.Sueltos(0, 0);
    const QString maquina = a.Obligada("maquina");
    const int ope = a.Numero("ope");
    a.Obligada("nombre");
    const bool del_nivel = Familia_De(maquina).serie == Serie::Nivel;
    if (!del_nivel || !a.Hay("cabecera")) a.Obligada("campos");
    if (!del_nivel && a.Hay("cabecera"))
        throw Error_Uso{"La opción --cabecera es de los formatos del nivel"};
    const Instalacion instalacion(c);
    instalacion.Elegir_Maquina(maquina);
    instalacion.Comprobar_Operacion(ope, "D");
    if (del_nivel) return Crear_Del_Nivel(c, a, maquina, ope);
    Formato_Nuevo formato(maquina);
    Preparar_Nuevo(formato, a, ope);
    if (!Elegir_Campos(c, formato.listas, Nombres_De(a.Opcion("campos")))) return RECHAZADO;
    return Guardar_Nuevo(formato);
}

int Orden_Formato_Borrar(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"maquina", "nombre"});
    a.Sueltos(0, 0);
    const QString maquina = a.Obligada("maquina");
    const QString nombre = a.Obligada("nombre");
    const Instalacion instalacion(c);
    instalacion.Elegir_Maquina(maquina);
    if (!Buscar_Formato(*Base_Datos, maquina, nombre)) {
        c.Mensaje("No existe el formato " + nombre);
        return RECHAZADO;
    }
    return Eliminar_Formato(*Base_Datos, maquina, nombre) ? HECHO : RECHAZADO;
}
