#include "app/ventanas/Programa.h"

#include "app/ventanas/Aplicacion.h"
#include "app/ventanas/Ventanas.h"
#include "core/Copias.h"
#include "core/ModEstTotal.h"

#include <memory>
#include <QApplication>
#include <QTimer>

namespace {

constexpr int REPOSO_MS = 2000;

// The database is looked through for damage once the user has his window, a table whenever nothing
// else is going on.
void Revisar_En_Reposo(QTimer& reloj)
{
    const auto revision = std::make_shared<Revision_Base>();
    QObject::connect(&reloj, &QTimer::timeout, &reloj, [&reloj, revision] {
        reloj.setInterval(0);
        if (QApplication::activeModalWidget()) return reloj.setInterval(REPOSO_MS);
        // A box that it shows has a loop of its own, in which the clock must not go on.
        reloj.stop();
        if (revision->Paso()) reloj.start();
    });
    reloj.start(REPOSO_MS);
}

int Arrancar_Y_Esperar(const QString& ruta, const Interfaz_Qt& interfaz)
{
    Arranque_Qt ventanas;
    try {
        if (!Main(ruta, ventanas)) return ESTADO_FALLO;
    } catch (...) {
        Fallo_Sin_Atrapar(Error_En_Curso());
    }
    // The model's dialog has a loop of its own, in which the run may have been ended already.
    QTimer reposo;
    Revisar_En_Reposo(reposo);
    if (!interfaz.Terminada()) QCoreApplication::exec();
    return interfaz.Estado();
}

} // namespace

int Ejecutar_Programa(const QString& ruta)
{
    Interfaz_Qt interfaz;
    Interfaz* const anterior = Poner_Interfaz(&interfaz);
    Conectar_Dialogos(interfaz);
    const int estado = Arrancar_Y_Esperar(ruta, interfaz);
    Base_Datos.reset();
    Poner_Interfaz(anterior);
    return estado;
}
