#include "app/ventanas/Ventanas.h"

#include "codes/ui/Dialogos_Codigos.h"
#include "conversions/ui/Dialogos_Conversion.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "core/ui/Dialogos.h"
#include "core/ui/FrmKRT.h"
#include "core/ui/FrmMain.h"
#include "core/ui/frmPantalla.h"
#include "core/ui/Piezas.h"
#include "export/ui/Dialogos_Exportar.h"
#include "export/ui/ExportDXF.h"
#include "formats/Formato_Existente.h"
#include "formats/ui/Dialogos_Formatos.h"
#include "formats/ui/Frmformatos.h"
#include "formats/ui/FrmFormatosNV400.h"
#include "rawfiles/ui/Dialogos_Brutos.h"
#include "session/ui/Dialogos_Sesion.h"
#include "session/ui/frmDescargas.h"
#include "session/ui/FrmTxt.h"
#include "transfer/ui/Dialogos_Transfer.h"
#include "transfer/ui/FrmIni.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace {

template <typename Dialogo> auto Mostrar(const QString& titulo = {})
{
    return [titulo] {
        auto& frm = Dialogos::Unico<Dialogo>();
        if (!titulo.isEmpty()) frm.setWindowTitle(titulo);
        frm.Mostrar();
    };
}

// Lets the window system show a window; it is given up after a second.
void Esperar_En_Pantalla(const QWidget& ventana)
{
    QElapsedTimer plazo;
    plazo.start();
    do {
        Interfaz_Actual().Repintar();
    } while (!ventana.windowHandle()->isExposed() && plazo.elapsed() < 1000);
}

void Conectar_Descargas()
{
    Puertas_Descargas& puertas = Puertas_De_Descargas();
    puertas.Formato_Existente = Exporta_o_Imprime_Formato_Existente;
    puertas.Formato_Nuevo = Exporta_Formato_Nuevo;
}

// The toolbar looks at the family, the menu's entry doesn't.
void Formatos_De_Toolbar()
{
    if (Familia_Actual().serie == Serie::Nivel)
        Mostrar<FrmFormatosNV400>("Mantenimiento de Formatos")();
    else
        Mostrar<Frmformatos>("Mantenimiento de Formatos")();
}

} // namespace

void Conectar_Dialogos(Interfaz_Qt& interfaz)
{
    interfaz.visor = [](const QString& fichero, bool fija) {
        Dialogos::Unico<FrmTxt>().Ver(fichero, fija);
    };
    Conectar_Dialogos_Sesion();
    Conectar_Dialogos_Formatos();
    Conectar_Dialogos_Exportar();
    Conectar_Dialogos_Conversion();
    Conectar_Dialogos_Transfer();
    Conectar_Dialogos_Codigos();
    Conectar_Descargas();
    Conectar_Dialogos_Brutos();
}

void Conectar_Entradas(FrmMain& principal)
{
    principal.Al_Elegir("Transfer", Mostrar<FrmIni>());
    principal.Al_Elegir("Toolbar1(1)", Mostrar<FrmIni>());
    principal.Al_Elegir("Sesiones", Mostrar<frmDescargas>());
    principal.Al_Elegir("Toolbar1(3)", Mostrar<frmDescargas>("Descargas"));
    principal.Al_Elegir("Formatos", Mostrar<Frmformatos>("Formatos Disponibles"));
    principal.Al_Elegir("Toolbar1(4)", Formatos_De_Toolbar);
    principal.Al_Elegir("Mnu_ConvDXF", Mostrar<ExportDXF>());
    principal.Al_Elegir("Toolbar1(5)", Mostrar_Librerias);
    principal.Al_Elegir("Mnu_ConvEst", [] { Mostrar_frmConvEst(0); });
    principal.Al_Elegir("Mnu_ConvRob", Mostrar_frmRobotizada);
    principal.Al_Elegir("Mnu_ConvLandxml", [] { Mostrar_frmConvEst(1); });
}

Arranque_Qt::Arranque_Qt() = default;

Arranque_Qt::~Arranque_Qt()
{
    // The dialogs go before the window that they live in, and their transfers with them.
    while (!Ventana::Cargadas().isEmpty())
        delete Ventana::Cargadas().constLast();
}

void Arranque_Qt::Crear_Principal()
{
    principal = std::make_unique<FrmMain>();
    Conectar_Entradas(*principal);
}

void Arranque_Qt::Puntero_De_Espera(bool espera)
{
    Interfaz_Actual().Cursor_Ocupado(espera);
}

QSize Arranque_Qt::Pantalla() const
{
    const QScreen* const pantalla = QGuiApplication::primaryScreen();
    return (QSizeF(pantalla->size()) * pantalla->devicePixelRatio()).toSize();
}

void Arranque_Qt::Poner_Logo(const QString& fichero)
{
    principal->Poner_Fondo(fichero);
}

void Arranque_Qt::Mostrar_Portada()
{
    auto& portada = Dialogos::Unico<frmPantalla>();
    portada.show();
    // The thread sleeps next: the splash must have been painted before that.
    Esperar_En_Pantalla(portada);
    portada.repaint();
    Interfaz_Actual().Repintar();
}

void Arranque_Qt::Quitar_Portada()
{
    if (frmPantalla* const portada = Dialogos::Cargado<frmPantalla>()) portada->Descargar();
}

void Arranque_Qt::Mostrar_Principal()
{
    principal->show();
    // The model's dialog lays itself over the window, so that has to have its place.
    Esperar_En_Pantalla(*principal);
}

void Arranque_Qt::Pedir_Modelo()
{
    Dialogos::Unico<FrmKRT>().Mostrar_Modal();
}
