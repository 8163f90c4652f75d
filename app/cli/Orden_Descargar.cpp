#include "app/cli/Instalacion.h"
#include "app/cli/Opciones_Comunes.h"
#include "app/cli/Ordenes_Transfer.h"
#include "core/jet/Esquema.h"
#include "core/ModEstTotal.h"
#include "core/plataforma.h"
#include "transfer/Despacho.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/enlace/Puerto_Qt.h"
#include "transfer/Peticiones_Transfer.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTimer>

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

// A name that the column can't take is told before the instrument sends anything.
void Comprobar_Nombre(const QString& nombre)
{
    if (Basico::Trim(nombre).isEmpty())
        throw Error_Uso{"El nombre de la sesión no puede quedar en blanco"};
    const int ancho = Esquema::Ancho("Sesiones", "NFichero");
    if (nombre.size() > ancho)
        throw Error_Uso{QStringLiteral("El nombre de la sesión tiene %1 caracteres y no puede "
                                       "pasar de %2")
                            .arg(nombre.size())
                            .arg(ancho)};
}

// @return seconds without a byte after which the order gives up; 0: never
int Leer_Espera(const Argumentos& a)
{
    const int segundos = a.Hay("espera") ? a.Numero("espera") : 0;
    if (segundos < 0 || (a.Hay("espera") && segundos == 0))
        throw Error_Uso{"La espera es un número de segundos desde 1"};
    return segundos;
}

// Gives the transfer up when no byte has come for that long.
void Vigilar_Plazo(QTimer& plazo, int segundos, Puerto_Serie& puerto, Descarga& descarga)
{
    if (segundos == 0) return;
    plazo.setSingleShot(true);
    plazo.setInterval(segundos * 1000);
    QObject::connect(&puerto, &Puerto_Serie::evento, &plazo, qOverload<>(&QTimer::start));
    QObject::connect(&plazo, &QTimer::timeout, &descarga, [&descarga, segundos] {
        descarga.Dejarlo(QStringLiteral("No llega nada desde hace %1 segundos").arg(segundos));
    });
    plazo.start();
}

} // namespace

int Orden_Descargar(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"modelo", "ope", "puerto", "nombre", "velocidad", "espera"});
    a.Sueltos(0, 0);
    const QString modelo = a.Obligada("modelo");
    const int ope = a.Numero("ope");
    const QString dispositivo = a.Obligada("puerto");
    const QString nombre = a.Obligada("nombre");
    Comprobar_Nombre(nombre);
    const int espera_maxima = Leer_Espera(a);
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
    const plataforma::Peticion_De_Fin fin;
    QObject::connect(&fin, &plataforma::Peticion_De_Fin::pedido, &espera, [&] {
        descarga.Asegurar();
        descarga.Dejarlo("Se ha pedido el fin del programa");
    });
    QTimer plazo;
    Vigilar_Plazo(plazo, espera_maxima, *el_puerto, descarga);
    descarga.BtnIniciar();
    espera.exec();
    descarga.Dejarlo("La transferencia no ha terminado");
    for (const QString& sesion : descarga.Resultado().sesiones)
        c.Linea(sesion);
    if (descarga.Resultado().Completa()) return HECHO;
    if (!descarga.Conservado().isEmpty())
        c.Mensaje("Véase miraldos-cli rescates: " + QFileInfo(descarga.Conservado()).fileName());
    return RECHAZADO;
}
