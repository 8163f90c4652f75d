#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Sesion.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "formats/Formato_Nuevo.h"

int Orden_Formato_Nuevo(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"maquina", "ope", "nombre", "campos"}, {"titulos"});
    a.Sueltos(0, 0);
    const QString maquina = a.Obligada("maquina");
    const int ope = a.Numero("ope");
    const QString nombre = a.Obligada("nombre");
    QStringList campos = a.Obligada("campos").split(u',');
    const Instalacion instalacion(c);
    instalacion.Elegir_Maquina(maquina);
    instalacion.Comprobar_Operacion(ope, "D");
    if (Familia_De(maquina).serie == Serie::Nivel) {
        c.Mensaje("Los formatos del nivel todavía no se crean en esta versión");
        return RECHAZADO;
    }

    Formato_Nuevo formato(maquina);
    formato.Crear();
    formato.Elegir_Tipo(
        int(Buscar_Trozo(formato.tag_tipos, QString::number(ope), QChar(SEP_LISTA))) - 1);
    formato.Escribir_Nombre(nombre);
    formato.cabeceras = a.Hay("titulos");
    for (QString& campo : campos) {
        campo = Basico::Trim(campo);
        const qsizetype lugar = formato.listas.disponibles.indexOf(campo);
        if (lugar < 0) {
            c.Mensaje("El campo \"" + campo +
                      "\" no está disponible; los hay: " + formato.listas.disponibles.join(", "));
            return RECHAZADO;
        }
        formato.listas.Agregar({int(lugar)});
    }
    return formato.Aceptar([] {}) ? HECHO : RECHAZADO;
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
