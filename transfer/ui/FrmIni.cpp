#include "transfer/ui/FrmIni.h"

#include "core/Ajustes_Modelo.h"
#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "core/Sucesos.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"
#include "transfer/Despacho.h"

#include <QDropEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>

namespace {

// Sizes that were given in twips, in pixels.
constexpr int ANCHO_MINIMO = 6300 / 15, ALTO_MINIMO = 4845 / 15;
constexpr int MENOS_ANCHO = 300 / 15, MENOS_ALTO = 1725 / 15;
constexpr int BOTON_AL_BORDE = 1125 / 15;
constexpr int MARGEN = MENOS_ANCHO / 2;
constexpr int ALTO_TITULO = 66, ALTO_BOTON = 28;

/// A list whose items are dragged as the list's own name.
class Lista_Operaciones : public QListWidget {
public:
    explicit Lista_Operaciones(const QString& nombre)
    {
        setObjectName(nombre);
        setDragEnabled(true);
        setDragDropMode(QAbstractItemView::DragOnly);
        setSelectionMode(QAbstractItemView::SingleSelection);
        setIconSize(QSize(24, 24));
    }

protected:
    QMimeData* mimeData(const QList<QListWidgetItem*>&) const override
    {
        auto* const datos = new QMimeData;
        datos->setText(objectName());
        return datos;
    }
};

} // namespace

FrmIni::FrmIni() : Ventana(QStringLiteral("FrmIni"))
{
    setWindowTitle(QStringLiteral("Transferencias"));
    titulo_modelo = Piezas::Imagen("Picture1", 60, 60);
    titulo_modelo->setParent(this);
    titulo_modelo->setGeometry(MARGEN, 3, 60, 60);
    nombre_modelo = Piezas::Rotulo({}, "LblModelo");
    nombre_modelo->setParent(this);
    nombre_modelo->setGeometry(MARGEN + 70, 3, ANCHO_MINIMO - MARGEN - 90, 60);
    QFont letra = nombre_modelo->font();
    letra.setPointSizeF(letra.pointSizeF() * 1.4);
    letra.setBold(true);
    nombre_modelo->setFont(letra);
    Hacer_Frame();
    btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    Command1 = Piezas::Boton("Command1", "&Cerrar");
    for (QPushButton* const boton : {btnAyuda, Command1}) {
        boton->setParent(this);
        boton->setAutoDefault(false);
    }
    Piezas::Orden({LVI, LVD, btnAyuda, Command1});
    Poner_Botones(nullptr, Command1);
    connect(Command1, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("transfer"); });
    // The settings dialog has the family key at hand, which seldom is a model's
    // name: the picture then stays until the dialog is activated.
    connect(&Sucesos::Unico(), &Sucesos::modelo_cambiado, this,
            [this] { Mostrar_Foto(Clave_Estacion); });
    setMinimumSize(ANCHO_MINIMO, ALTO_MINIMO);
    resize(620, 420);
    Recordar_Posicion("TRANSFERENCIAS", 2);
}

void FrmIni::Hacer_Frame()
{
    Frame1 = Piezas::Grupo({}, "Frame1");
    Frame1->setParent(this);
    LVI = new Lista_Operaciones("LVI");
    LVD = new Lista_Operaciones("LVD");
    Image1 = Piezas::Imagen("Image1", 96, 96);
    Image2 = Piezas::Imagen("Image2", 96, 96);
    Piezas::Poner_Imagen(*Image1, En_Instalacion("bmp/pc.png"));
    Piezas::Poner_Imagen(*Image2, En_Instalacion("bmp/aparato.png"));
    Image1->setToolTip("Arrastre aquí una descarga");
    Image2->setToolTip("Arrastre aquí una carga");
    for (QLabel* const imagen : {Image1, Image2}) {
        imagen->setAcceptDrops(true);
        imagen->installEventFilter(this);
    }
    LVI->installEventFilter(this);
    LVD->installEventFilter(this);
    auto* const caja = new QGridLayout(Frame1);
    caja->addWidget(Piezas::Rotulo("Descargas"), 0, 0);
    caja->addWidget(Piezas::Rotulo("Cargas"), 0, 2);
    caja->addWidget(LVI, 1, 0, 2, 1);
    caja->addWidget(LVD, 1, 2, 2, 1);
    caja->addWidget(Image1, 1, 1);
    caja->addWidget(Image2, 2, 1);
    caja->setColumnStretch(0, 1);
    caja->setColumnStretch(2, 1);
    caja->setRowStretch(1, 1);
    caja->setRowStretch(2, 1);
}

void FrmIni::resizeEvent(QResizeEvent* evento)
{
    Ventana::resizeEvent(evento);
    Frame1->setGeometry(MARGEN, ALTO_TITULO, width() - MENOS_ANCHO, height() - MENOS_ALTO);
    const int y = Frame1->geometry().bottom() + 10;
    const int x = Frame1->x() + Frame1->width() - BOTON_AL_BORDE;
    Command1->setGeometry(x, y, BOTON_AL_BORDE, ALTO_BOTON);
    btnAyuda->setGeometry(x - BOTON_AL_BORDE - 8, y, BOTON_AL_BORDE, ALTO_BOTON);
}

void FrmIni::Al_Activarse()
{
    Mostrar_Foto(Nombre_Estacion);
    nombre_modelo->setText(Nombre_Estacion);
    Llenar(*LVI, "D");
    Llenar(*LVD, "C");
}

void FrmIni::Mostrar_Foto(const QString& modelo)
{
    const QString foto = Cargar_Foto_Estacion(modelo);
    if (!foto.isEmpty()) Piezas::Poner_Imagen(*titulo_modelo, foto);
}

void FrmIni::Llenar(QListWidget& lista, const QString& tipo_ope)
{
    const int elegida = lista.currentRow();
    lista.clear();
    const QIcon icono(
        En_Instalacion(tipo_ope == "D" ? "bmp/lista_descarga.png" : "bmp/lista_carga.png"));
    for (const Operacion_Ofrecida& operacion : Operaciones_Ofrecidas(tipo_ope)) {
        auto* const item = new QListWidgetItem(icono, operacion.texto, &lista);
        item->setData(Qt::UserRole, operacion.ope);
    }
    lista.setCurrentRow(elegida);
}

bool FrmIni::Soltado(QLabel& imagen, const QString& texto)
{
    const QListWidget* const lista = &imagen == Image1 ? LVI : LVD;
    if (texto != lista->objectName()) {
        Interfaz_Actual().Pitar();
        return false;
    }
    // The drag's own loop has to end first: what starts here opens dialogs.
    QMetaObject::invokeMethod(
        this, [this, lista] { Empezar(*lista); }, Qt::QueuedConnection);
    return true;
}

void FrmIni::Empezar(const QListWidget& lista)
{
    const QListWidgetItem* const item = lista.currentItem();
    if (item)
        Lanzar_Operacion(Clave_Estacion, item->data(Qt::UserRole).toInt(),
                         &lista == LVI ? "D" : "C");
}

bool FrmIni::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == LVI || objeto == LVD) {
        if (evento->type() != QEvent::KeyPress) return false;
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla != Qt::Key_Return && tecla != Qt::Key_Enter) return false;
        Empezar(static_cast<QListWidget&>(*objeto));
        return true;
    }
    if (evento->type() == QEvent::DragEnter || evento->type() == QEvent::DragMove) {
        auto& arrastre = static_cast<QDropEvent&>(*evento);
        if (arrastre.mimeData()->hasText()) arrastre.acceptProposedAction();
        return true;
    }
    if (evento->type() == QEvent::Drop) {
        auto& suelta = static_cast<QDropEvent&>(*evento);
        if (Soltado(static_cast<QLabel&>(*objeto), suelta.mimeData()->text()))
            suelta.acceptProposedAction();
        return true;
    }
    return Ventana::eventFilter(objeto, evento);
}
