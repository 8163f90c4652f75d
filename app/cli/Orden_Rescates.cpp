#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Transfer.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "transfer/enlace/Rescate.h"
#include "transfer/Series.h"

#include <QFileInfo>

namespace {

// A bare name is one of the list's; a path is taken as it stands.
QString Fichero_De(const QString& palabra)
{
    const QString del_log = En_Instalacion("LOG/" + palabra);
    return !palabra.contains(u'/') && !QFile::exists(palabra) && QFile::exists(del_log) ? del_log
                                                                                        : palabra;
}

int Operacion_De(const Argumentos& a, const Rescate& diario)
{
    if (a.Hay("ope")) return Operacion_En_El_Enlace(Familia_Actual(), a.Numero("ope"));
    if (diario.maquina.isEmpty())
        throw Error_Uso{"El nombre del fichero no dice la operación; falta --ope"};
    return diario.operacion;
}

// What a journal that breaks off lacks is no failure of its rescue.
bool Rescatado_Entero(const Resultado_Recepcion& r)
{
    Faltas_Recepcion faltas = r.faltas;
    faltas.sin_acabar = false;
    faltas.abiertas = 0;
    faltas.sin_fin = 0;
    // So are the heads at its end whose records never came.
    if (r.faltas.sin_acabar) faltas.sueltas = 0;
    return r.guardada && !r.error && faltas.Ninguna();
}

} // namespace

int Orden_Rescates(const Contexto& c, const QStringList& palabras)
{
    Argumentos(palabras, {}).Sueltos(0, 0);
    const Instalacion instalacion(c);
    c.Fila({"Fichero", "Fecha", "Hora", "Máquina", "OPE", "Bytes", "Estado"});
    for (const Rescate& r : Rescates())
        c.Fila({QFileInfo(r.fichero).fileName(), Basico::Formato_Fecha(r.momento, "DD/MM/YYYY"),
                Basico::Formato_Fecha(r.momento, "HH:MM:SS"), r.maquina,
                r.maquina.isEmpty() ? QString() : QString::number(r.operacion),
                QString::number(r.bytes),
                r.en_curso ? QString("en curso") : Leer_Contenido(r.fichero, r.maquina).falta});
    return HECHO;
}

int Orden_Rescatar(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"modelo", "ope", "nombre"}, {"forzar"});
    const QString palabra = a.Sueltos(1, 1).first();
    const QString modelo = a.Obligada("modelo");
    const QString nombre = a.Obligada("nombre");
    const Instalacion instalacion(c);
    instalacion.Elegir_Modelo(modelo);
    const QString fichero = Fichero_De(palabra);
    const Rescate diario = Leer_Rescate(fichero);
    const int ope = Operacion_De(a, diario);
    if (a.Hay("ope")) instalacion.Comprobar_Operacion(a.Numero("ope"), "D");

    const Resultado_Recepcion r = Rescatar(
        fichero, {QString(), nombre, ope, 0, Clave_Estacion, Nombre_Estacion}, a.Hay("forzar"));
    for (const QString& sesion : r.sesiones)
        c.Linea(sesion);
    if (const QString falta = Frase_Faltas(r.faltas, Serie_De(Familia_Actual())->unidad);
        !falta.isEmpty())
        c.Mensaje("Falta: " + falta);
    if (r.error)
        c.Mensaje(Texto_Informe("No se ha podido guardar la recepción, que sigue donde estaba",
                                *r.error, "\n"));
    else if (!r.guardada)
        c.Mensaje("La operación no guarda nada; la recepción sigue donde estaba");
    return Rescatado_Entero(r) ? HECHO : RECHAZADO;
}
