#include "app/ventanas/Ventana_Convert.h"

#include "core/ModEstTotal.h"
#include "export/dxf/Conversion_DXF.h"
#include "export/ui/Panel_Plano.h"
#include "session/Peticiones_Sesion.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>

namespace {

std::optional<QChar> Preguntar_Separador()
{
    const QString elegido = Peticiones_De_Sesion().Pedir_Separador();
    return elegido.isEmpty() ? std::nullopt : std::optional(elegido.front());
}

bool Es_Dibujo(const QString& fichero)
{
    return fichero.endsWith(u".dxf", Qt::CaseInsensitive);
}

} // namespace

Ventana_Convert::Ventana_Convert() : panel(new Panel_Plano)
{
    setObjectName(QStringLiteral("Convert"));
    setWindowTitle(QStringLiteral("Convert"));
    setCentralWidget(panel);
    panel->setContentsMargins(6, 6, 6, 6);
    QMenu* const menu = menuBar()->addMenu(QStringLiteral("&Fichero"));
    const auto entrada = [&](const char* nombre, const QString& texto, const QKeySequence& tecla) {
        QAction* const accion = menu->addAction(texto);
        accion->setObjectName(nombre);
        accion->setShortcut(tecla);
        return accion;
    };
    connect(entrada("Abrir", "&Abrir...", QKeySequence::Open), &QAction::triggered, this,
            &Ventana_Convert::Elegir);
    accion_guardar = entrada("GuardarDXF", "Guardar como &DXF...", QKeySequence::Save);
    accion_guardar->setEnabled(false);
    connect(accion_guardar, &QAction::triggered, this, &Ventana_Convert::Guardar_DXF);
    connect(entrada("Imprimir", "&Imprimir...", QKeySequence::Print), &QAction::triggered, panel,
            &Panel_Plano::Imprimir);
    connect(entrada("Plano", "Guardar &plano...", QKeySequence()), &QAction::triggered, panel,
            &Panel_Plano::Guardar);
    menu->addSeparator();
    connect(entrada("Salir", "&Salir", QKeySequence::Quit), &QAction::triggered, this,
            &QWidget::close);
    resize(900, 560);
}

bool Ventana_Convert::Abrir(const QString& nombre)
{
    try {
        const Cursor_De_Espera espera;
        const auto hecho = Plano_De_Fichero(nombre, Preguntar_Separador);
        if (!hecho) return false;
        fichero = nombre;
        panel->Poner(*hecho, QFileInfo(nombre).fileName());
        accion_guardar->setEnabled(!Es_Dibujo(nombre));
        setWindowTitle(QFileInfo(nombre).fileName() + QStringLiteral(" - Convert"));
        return true;
    } catch (...) {
        Informe_Error("No se puede abrir " + nombre, Error_En_Curso());
        return false;
    }
}

void Ventana_Convert::Elegir()
{
    const auto elegido = Interfaz_Actual().Pedir_Fichero(
        {.titulo = "Cargar Fichero ...",
         .filtro = "Dibujos (*.dxf)|*.dxf|Listas de puntos (*.txt)|*.txt|Todos los Archivos "
                   "(*.*)|*.*",
         .carpeta = En_Instalacion("ficheros")});
    if (elegido && !elegido->nombre.isEmpty()) Abrir(elegido->nombre);
}

void Ventana_Convert::Guardar_DXF()
{
    const auto elegido = Interfaz_Actual().Pedir_Fichero({.titulo = "Guardar como ...",
                                                          .filtro = "Formato Autocad (*.DXF)|*.DXF",
                                                          .carpeta = En_Instalacion("ficheros"),
                                                          .extension = "dxf",
                                                          .guardar = true});
    if (!elegido || elegido->nombre.isEmpty()) return;
    if (QFileInfo::exists(elegido->nombre) &&
        !Interfaz_Actual().Preguntar("El fichero ya existe, ¿ Desea reemplazarlo?",
                                     Icono::Exclamacion))
        return;
    Avance_Exportar callado;
    Transformar_DXF(Dibujo_De_Texto(fichero, elegido->nombre), Modo_DXF::Ambos, Leer_Ajustes_DXF(),
                    callado);
}
