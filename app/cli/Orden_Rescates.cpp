#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Transfer.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "transfer/enlace/Rescate.h"

#include <QFileInfo>

int Orden_Rescates(const Contexto& c, const QStringList& palabras)
{
    Argumentos(palabras, {}).Sueltos(0, 0);
    const Instalacion instalacion(c);
    c.Fila({"Fichero", "Fecha", "Hora", "Máquina", "OPE", "Bytes"});
    for (const Rescate& r : Rescates())
        c.Fila({QFileInfo(r.fichero).fileName(), Basico::Formato_Fecha(r.momento, "DD/MM/YYYY"),
                Basico::Formato_Fecha(r.momento, "HH:MM:SS"), r.maquina,
                r.maquina.isEmpty() ? QString() : QString::number(r.operacion),
                QString::number(r.bytes)});
    return HECHO;
}

int Orden_Rescatar(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"modelo", "ope", "nombre"});
    const QString palabra = a.Sueltos(1, 1).first();
    const QString modelo = a.Obligada("modelo");
    const int ope = a.Numero("ope");
    const QString nombre = a.Obligada("nombre");
    const Instalacion instalacion(c);
    instalacion.Elegir_Modelo(modelo);
    instalacion.Comprobar_Operacion(ope, "D");

    // A bare name is one of the list's; a path is taken as it stands.
    const QString del_log = En_Instalacion("LOG/" + palabra);
    const QString fichero =
        !palabra.contains(u'/') && !QFile::exists(palabra) && QFile::exists(del_log) ? del_log
                                                                                     : palabra;
    const Resultado_Recepcion r =
        Rescatar(fichero, {QString(), nombre, Operacion_En_El_Enlace(Familia_Actual(), ope), 0,
                           Clave_Estacion, Nombre_Estacion});
    for (const QString& sesion : r.sesiones)
        c.Linea(sesion);
    return r.completa ? HECHO : RECHAZADO;
}
