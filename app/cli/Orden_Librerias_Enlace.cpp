#include "app/cli/Envio_Consola.h"
#include "app/cli/Instalacion.h"
#include "app/cli/Opciones_Comunes.h"
#include "app/cli/Ordenes_Codigos.h"
#include "codes/Mantenimiento_A.h"
#include "codes/Mantenimiento_B.h"
#include "codes/Peticiones_Codigos.h"
#include "core/ModEstTotal.h"
#include "transfer/Despacho.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/enlace/Puerto_Qt.h"
#include "transfer/Peticiones_Transfer.h"

#include <QEventLoop>
#include <QScopeGuard>

namespace {

// The libraries of the model in force, as their dialog has them; that one is chosen.
// @throws Orden_Rechazada when the model takes none, or there is none of that key
std::unique_ptr<Mantenimiento_Librerias> Elegir_Libreria(const Contexto& c, const QString& libreria)
{
    std::unique_ptr<Mantenimiento_Librerias> dialogo;
    if (Familia_Actual().librerias == Serie::A) dialogo = std::make_unique<Mantenimiento_A>();
    if (Familia_Actual().librerias == Serie::B) dialogo = std::make_unique<Mantenimiento_B>();
    if (!dialogo) {
        c.Mensaje("El modelo " + Nombre_Estacion + " no tiene librerías de códigos");
        throw Orden_Rechazada{};
    }
    dialogo->Cargar();
    for (int i = 0; i < dialogo->librerias.size(); ++i)
        if (dialogo->librerias[i].codigo == libreria && dialogo->Elegir(i)) return dialogo;
    c.Mensaje("No existe la librería " + libreria + " de la serie " + dialogo->Serie_Suya().letra +
              " (véase miraldos-cli librerias)");
    throw Orden_Rechazada{};
}

// The dialog of the destination, filled in and accepted.
std::optional<Destino_Libreria> Aceptar_Destino(Destino destino, const QString& nombre)
{
    Eleccion_Destino dialogo;
    dialogo.Elegir(destino);
    dialogo.nombre = nombre;
    if (!dialogo.Aceptar()) return std::nullopt;
    return dialogo.elegido;
}

// Runs the reception to its end. @return true when all that came is stored
bool Recibir(const Contexto& c, const QString& dispositivo)
{
    auto puerto = std::make_unique<Puerto_Qt>(dispositivo);
    Puerto_Qt* const el_puerto = puerto.get();
    Descarga descarga(std::move(puerto));
    QEventLoop espera;
    QObject::connect(&descarga, &Descarga::terminada, &espera, &QEventLoop::quit,
                     Qt::QueuedConnection);
    QObject::connect(&descarga, &Descarga::etiqueta_cambiada, &espera,
                     [&c](const QString& texto) { c.Mensaje(QString(texto).remove(u'&')); });
    // Without a dialog to close, a lost cable ends the order; the journal keeps what came.
    QObject::connect(el_puerto, &Puerto_Serie::perdido, &espera, &QEventLoop::quit,
                     Qt::QueuedConnection);
    const auto antes = Peticiones_De_Transfer();
    const auto devolver = qScopeGuard([&antes] { Peticiones_De_Transfer() = antes; });
    bool mostrado = false;
    Peticiones_De_Transfer().Dialogo_Descarga = [&descarga] { return &descarga; };
    Peticiones_De_Transfer().Mostrar_Descarga = [&mostrado] { mostrado = true; };
    Lanzar_Operacion(Clave_Estacion, int(Operacion::Libreria), "D");
    if (!mostrado) return false;
    descarga.BtnIniciar();
    if (descarga.En_Marcha()) espera.exec();
    const bool hecha = descarga.Resultado().completa;
    descarga.Abandonar();
    return hecha;
}

} // namespace

int Orden_Enviar_Libreria(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"modelo", "puerto", "velocidad"}, {"seguimiento"});
    const QString libreria = a.Sueltos(1, 1).first();
    const QString modelo = a.Obligada("modelo");
    const Envio_Consola envio{a.Obligada("puerto"), a.Hay("seguimiento")};
    // The order itself is the answer to the dialog's question.
    Contexto con_si = c;
    con_si.si = true;
    const Instalacion instalacion(con_si);
    instalacion.Elegir_Modelo(modelo);
    Poner_Velocidad(a);
    const auto dialogo = Elegir_Libreria(c, libreria);
    return envio.Correr(c, [&dialogo] { dialogo->Enviar(); }) ? HECHO : RECHAZADO;
}

int Orden_Recibir_Libreria(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"modelo", "puerto", "destino", "nombre", "velocidad"});
    a.Sueltos(0, 0);
    const QString modelo = a.Obligada("modelo");
    const QString puerto = a.Obligada("puerto");
    const QString nombre = a.Obligada("nombre");
    const qsizetype destino = QStringList{"base", "fichero"}.indexOf(a.Obligada("destino"));
    if (destino < 0) throw Error_Uso{"El destino es base o fichero"};
    const Instalacion instalacion(c);
    instalacion.Elegir_Modelo(modelo);
    instalacion.Comprobar_Operacion(int(Operacion::Libreria), "D");
    Poner_Velocidad(a);
    const auto antes = Peticiones_De_Codigos();
    const auto devolver = qScopeGuard([&antes] { Peticiones_De_Codigos() = antes; });
    Peticiones_De_Codigos().Pedir_Destino = [&] {
        return Aceptar_Destino(Destino(destino), nombre);
    };
    if (!Recibir(c, puerto)) return RECHAZADO;
    c.Linea(nombre);
    return HECHO;
}
