#include "core/ui/FrmMain.h"

#include "core/Configuracion.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "core/Sucesos.h"
#include "core/ui/About.h"
#include "core/ui/Dialogos.h"
#include "core/ui/FrmKRT.h"
#include "core/ui/Frmutils.h"
#include "core/ui/Piezas.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPainter>
#include <QStatusBar>
#include <QToolBar>

/// The area of the dialogs, with the logo in its middle.
class Area_Ventanas : public QMdiArea {
public:
    QPixmap fondo;

protected:
    void paintEvent(QPaintEvent* evento) override
    {
        QMdiArea::paintEvent(evento);
        if (fondo.isNull()) return;
        QPainter pintor(viewport());
        const QRect hueco = viewport()->rect();
        QRect lugar(QPoint(),
                    fondo.size().boundedTo(fondo.size().scaled(hueco.size(), Qt::KeepAspectRatio)));
        lugar.moveCenter(hueco.center());
        pintor.setRenderHint(QPainter::SmoothPixmapTransform);
        pintor.drawPixmap(lugar, fondo);
    }
    void resizeEvent(QResizeEvent* evento) override
    {
        QMdiArea::resizeEvent(evento);
        viewport()->update();
    }
};

namespace {

const QString FONDO_AREA = "#dfe6ea";

QString Boton_De_Toolbar(int indice)
{
    return QStringLiteral("Toolbar1(%1)").arg(indice);
}

constexpr int BOTON_CODIGOS = 5;

} // namespace

FrmMain::FrmMain() : area(new Area_Ventanas), panel(new QLabel)
{
    setObjectName(QStringLiteral("FrmMain"));
    setWindowTitle(QStringLiteral("Miraldos"));
    setWindowIcon(QIcon(En_Instalacion(QStringLiteral("bmp/miraldos.png"))));
    area->setObjectName(QStringLiteral("Area"));
    area->setBackground(QColor(FONDO_AREA));
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area);
    Ventana::Poner_Area(area);
    Hacer_Menu();
    Hacer_Toolbar();
    auto* const barra = new QStatusBar;
    barra->setObjectName(QStringLiteral("Stbar"));
    setStatusBar(barra);
    panel->setObjectName(QStringLiteral("Panel1"));
    barra->addWidget(panel);
    // The sending dialog goes when it has sent: its count stays to be read here.
    auto* const cuenta = new QLabel;
    cuenta->setObjectName(QStringLiteral("Panel2"));
    barra->addWidget(cuenta, 1);
    connect(&Sucesos::Unico(), &Sucesos::envio_acabado, cuenta, [cuenta](const QString& texto) {
        cuenta->setText(QStringLiteral("Último envío: ") + texto);
    });
    Acciones_Propias();
    connect(&Sucesos::Unico(), &Sucesos::modelo_cambiado, this, &FrmMain::Rehacer_Panel);
    connect(&Sucesos::Unico(), &Sucesos::estacion_cargada, this, [this](const QString& valor) {
        acciones[Boton_De_Toolbar(BOTON_CODIGOS)]->setEnabled(Familia_De(valor).serie !=
                                                              Serie::Nivel);
    });
    Rehacer_Panel();
    resize(1024, 700);
}

FrmMain::~FrmMain() = default;

QMenu* FrmMain::Menu(QMenu* padre, const QString& nombre, const QString& titulo)
{
    QMenu* const menu = padre ? padre->addMenu(titulo) : menuBar()->addMenu(titulo);
    menu->setObjectName(nombre);
    return menu;
}

void FrmMain::Entrada(QMenu* menu, const QString& nombre, const QString& titulo, int indice)
{
    QAction* const accion = menu->addAction(titulo);
    accion->setObjectName(nombre);
    accion->setMenuRole(QAction::NoRole);
    QString entrada = nombre;
    if (indice > 0) {
        accion->setProperty("Index", indice);
        entrada += QStringLiteral("(%1)").arg(indice);
    }
    acciones.insert(entrada, accion);
    orden << entrada;
    connect(accion, &QAction::triggered, this,
            [this, entrada, titulo] { Elegida(entrada, titulo); });
}

void FrmMain::Hacer_Menu()
{
    QMenu* const estacion = Menu(nullptr, "Estacion", "Estación");
    Entrada(estacion, "Transfer", "Transferencias");
    Entrada(estacion, "Sesiones", "Sesiones");
    Entrada(estacion, "Formatos", "Formatos");
    QMenu* const config = Menu(estacion, "config", "Configuración");
    Entrada(config, "Comuni", "Comunicaciones");
    Entrada(config, "Ayudas", "Ayuda");
    QMenu* const conversiones = Menu(estacion, "Mnu_Conersiones", "Conversiones");
    Entrada(conversiones, "Mnu_ConvDXF", "Convertir a DXF");
    Entrada(conversiones, "Mnu_ConvEst", "Convertir a Std. Survey");
    Entrada(conversiones, "Mnu_ConvLandxml", "Convertir a LandXML");
    Entrada(conversiones, "Mnu_ConvRob", "Monitorizar Robotizada");
    QMenu* const ventana = Menu(nullptr, "Mnuven", "Ventana");
    Entrada(ventana, "Mnuven1", "&Cascada", 1);
    Entrada(ventana, "Mnuven1", "&Mosaico", 2);
    QMenu* const convert = Menu(nullptr, "mnu_Convert", "&Convert");
    Entrada(convert, "mnu_ConvertConvertir", " Convertir a DXF");
    QMenu* const ayuda = Menu(nullptr, "Ayuda", "Ayuda");
    Entrada(ayuda, "Acerca", "Acerca de ...");
}

void FrmMain::Boton(int indice, const QString& dibujo, const QString& titulo,
                    const QString& consejo)
{
    auto* const barra = findChild<QToolBar*>(QStringLiteral("Toolbar1"));
    const QIcon icono(En_Instalacion(QStringLiteral("bmp/") + dibujo));
    QAction* const accion = barra->addAction(icono, titulo);
    accion->setObjectName(QStringLiteral("Toolbar1"));
    accion->setProperty("Index", indice);
    accion->setToolTip(consejo);
    const QString entrada = Boton_De_Toolbar(indice);
    acciones.insert(entrada, accion);
    orden << entrada;
    connect(accion, &QAction::triggered, this,
            [this, entrada, titulo] { Elegida(entrada, titulo); });
}

void FrmMain::Hacer_Toolbar()
{
    auto* const barra = new QToolBar;
    barra->setObjectName(QStringLiteral("Toolbar1"));
    barra->setMovable(false);
    barra->setIconSize(QSize(32, 32));
    barra->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    barra->setContextMenuPolicy(Qt::PreventContextMenu);
    addToolBar(barra);
    Boton(1, "transferencias.png", "Transferencias)", "Carga/Desarga de Datos a/desde la máquina");
    Boton(2, "configuracion.png", "Configuración", "Configuración");
    Boton(3, "descargas.png", "Descargas", "Descargas");
    Boton(4, "formatos.png", "Formatos", "Formatos");
    Boton(BOTON_CODIGOS, "codigos.png", "Códigos", "Códigos");
    Boton(6, "salir.png", "Salir", "Salir");
}

void FrmMain::Acciones_Propias()
{
    const auto ajustes = [](int pestana) {
        return [pestana] {
            auto& frm = Dialogos::Unico<Frmutils>();
            frm.Pestana(pestana);
            frm.Mostrar();
        };
    };
    Al_Elegir("Comuni", ajustes(0));
    Al_Elegir("Ayudas", ajustes(1));
    Al_Elegir(Boton_De_Toolbar(2), ajustes(0));
    Al_Elegir("Mnuven1(1)", [this] { area->cascadeSubWindows(); });
    Al_Elegir("Mnuven1(2)", [this] { Mosaico(); });
    Al_Elegir("mnu_ConvertConvertir",
              [] { Interfaz_Actual().Arrancar(En_Instalacion("Convert.exe"), {}); });
    Al_Elegir("Acerca", [] { Dialogos::Unico<About>().Mostrar_Modal(); });
    Al_Elegir(Boton_De_Toolbar(6), [] { Interfaz_Actual().Terminar(0); });
}

void FrmMain::Al_Elegir(const QString& entrada, std::function<void()> accion)
{
    Q_ASSERT(acciones.contains(entrada));
    hechos[entrada] = std::move(accion);
}

QStringList FrmMain::Entradas() const
{
    return orden;
}

void FrmMain::Elegida(const QString& entrada, const QString& titulo)
{
    const auto hecho = hechos.value(entrada);
    if (hecho)
        hecho();
    else
        Interfaz_Actual().Mensaje(Piezas::Texto_No_Disponible(titulo), Icono::Informacion);
}

void FrmMain::Mosaico()
{
    QList<QMdiSubWindow*> visibles;
    const auto todas = area->subWindowList(QMdiArea::CreationOrder);
    for (QMdiSubWindow* const v : todas)
        if (v->isVisible() && !v->isMinimized()) visibles << v;
    if (visibles.isEmpty()) return;
    // Side by side: each as tall as the area.
    const int ancho = area->viewport()->width() / int(visibles.size());
    for (int i = 0; i < visibles.size(); ++i) {
        visibles[i]->showNormal();
        visibles[i]->setGeometry(i * ancho, 0, ancho, area->viewport()->height());
    }
}

void FrmMain::Poner_Fondo(const QString& fichero)
{
    if (QFileInfo::exists(fichero)) area->fondo.load(fichero);
    area->viewport()->update();
}

void FrmMain::Mostrar_FrmKRT()
{
    Dialogos::Unico<FrmKRT>().Mostrar();
}

void FrmMain::Mostrar_Frmutils_Ayuda()
{
    auto& frm = Dialogos::Unico<Frmutils>();
    frm.Pestana(1);
    frm.Mostrar();
}

void FrmMain::Mostrar_Frmutils()
{
    Dialogos::Unico<Frmutils>().Mostrar();
}

void FrmMain::Rehacer_Panel()
{
    panel->setText(Texto_Panel_Estacion());
}

void FrmMain::closeEvent(QCloseEvent* evento)
{
    evento->accept();
    Interfaz_Actual().Terminar(0);
}
