#include "app/cli/Instalacion.h"
#include "app/cli/Opciones_Comunes.h"
#include "app/cli/Ordenes_Transfer.h"
#include "core/ModEstTotal.h"
#include "transfer/Despacho.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/enlace/Puerto_Qt.h"
#include "transfer/enlace/Rescate.h"
#include "transfer/Peticiones_Transfer.h"

#include <QEventLoop>
#include <QScopeGuard>

namespace {

// The road of the windows as far as the download dialog: what they ask for, the order has said.
// @return false when the routing stopped before the dialog, after its message
bool Llegar_Al_Dialogo(Descarga& descarga, int ope, const QString& nombre)
{
    bool mostrado = false;
    Peticiones_Transfer de_consola = Peticiones_De_Transfer();
    de_consola.Recibir_Libreria = [](int) {
        Interfaz_Actual().Mensaje(
            "Una librería de códigos se recibe con miraldos-cli recibir-libreria",
            Icono::Informacion);
    };
    de_consola.Pedir_Nombre_Sesion = [&nombre] { return nombre; };
    de_consola.Dialogo_Descarga = [&descarga] { return &descarga; };
    de_consola.Mostrar_Descarga = [&mostrado] { mostrado = true; };
    const auto antes = std::exchange(Peticiones_De_Transfer(), de_consola);
    const auto devolver = qScopeGuard([&antes] { Peticiones_De_Transfer() = antes; });
    Lanzar_Operacion(Clave_Estacion, ope, "D");
    return mostrado;
}

} // namespace

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
    Poner_Velocidad(a);

    auto puerto = std::make_unique<Puerto_Qt>(dispositivo);
    Puerto_Qt* const el_puerto = puerto.get();
    Descarga descarga(std::move(puerto));
    if (!Llegar_Al_Dialogo(descarga, ope, nombre)) return RECHAZADO;
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
    for (const QString& sesion : descarga.Resultado().sesiones)
        c.Linea(sesion);
    if (descarga.Resultado().completa && !descarga.Resultado().sesiones.isEmpty()) return HECHO;
    descarga.Abandonar();
    if (!Rescates().isEmpty())
        c.Mensaje(
            "Los datos no se han guardado enteros; lo recibido se conserva (véase miraldos-cli "
            "rescates)");
    return RECHAZADO;
}
