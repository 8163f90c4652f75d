#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Transfer.h"
#include "core/ModEstTotal.h"
#include "transfer/Descarga.h"
#include "transfer/Puerto_Qt.h"
#include "transfer/Rescate.h"

#include <QEventLoop>

int Orden_Descargar(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"modelo", "ope", "puerto", "nombre", "velocidad"});
    a.Sueltos(0, 0);
    const QString modelo = a.Obligada("modelo");
    const int ope = a.Numero("ope");
    const QString dispositivo = a.Obligada("puerto");
    const QString nombre = a.Obligada("nombre");
    if (nombre.isEmpty()) throw Error_Uso{"El nombre de la sesión no puede quedar en blanco"};
    const Instalacion instalacion(c);
    instalacion.Elegir_Modelo(modelo);
    instalacion.Comprobar_Operacion(ope, "D");
    if (ope == 2 && (Clave_Estacion == u"KRT300" || Clave_Estacion == u"PX7")) {
        c.Mensaje("La descarga de librerías de códigos todavía no está disponible en esta versión");
        return RECHAZADO;
    }
    const QStringList velocidades = Vel_Puerto.split(u',');
    if (a.Hay("velocidad")) Velocidad = a.Opcion("velocidad");
    else if (!velocidades.contains(Velocidad)) Velocidad = velocidades.first();
    if (!velocidades.contains(Velocidad))
        throw Error_Uso{"El modelo " + modelo + " admite las velocidades " + Vel_Puerto};

    auto puerto = std::make_unique<Puerto_Qt>(dispositivo);
    Puerto_Qt* const el_puerto = puerto.get();
    Descarga descarga(std::move(puerto));
    if (!descarga.Abrir_Puerto()) return RECHAZADO;
    // Only the routing knows 11 from 1.
    descarga.Preparar(ope == 11 ? 1 : ope, nombre);
    QEventLoop espera;
    QObject::connect(&descarga, &Descarga::terminada, &espera, &QEventLoop::quit,
                     Qt::QueuedConnection);
    QObject::connect(&descarga, &Descarga::etiqueta_cambiada, &espera,
                     [&c](const QString& texto) { c.Mensaje(QString(texto).remove(u'&')); });
    // Without a dialog to close, a lost cable ends the order; the journal keeps what came.
    QObject::connect(el_puerto, &Puerto_Serie::perdido, &espera, &QEventLoop::quit,
                     Qt::QueuedConnection);
    descarga.BtnIniciar();
    espera.exec();
    for (const QString& sesion : descarga.Resultado().sesiones) c.Linea(sesion);
    if (descarga.Resultado().completa && !descarga.Resultado().sesiones.isEmpty()) return HECHO;
    descarga.Abandonar();
    if (!Rescates().isEmpty())
        c.Mensaje("Los datos no se han guardado enteros; lo recibido se conserva (véase miraldos-cli "
                  "rescates)");
    return RECHAZADO;
}
