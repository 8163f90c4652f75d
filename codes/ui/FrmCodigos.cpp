#include "codes/ui/FrmCodigos.h"

#include "codes/Codigos.h"
#include "codes/ui/Panel_Librerias.h"
#include "core/Ayuda.h"
#include "core/Sucesos.h"
#include "core/ui/Piezas.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTableWidget>

namespace {

constexpr int COLUMNA_NUMERO = 0, COLUMNA_CODIGO = 1;
constexpr int ANCHO_NUMERO = 60;

/// The box in a cell takes no more than a code.
class Editor_De_Codigo : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem& opcion,
                          const QModelIndex& indice) const override
    {
        QWidget* const editor = QStyledItemDelegate::createEditor(padre, opcion, indice);
        if (auto* const caja = qobject_cast<QLineEdit*>(editor)) caja->setMaxLength(LARGO_CODIGO);
        return editor;
    }
};

QTableWidget* Hacer_Rejilla()
{
    auto* const rejilla = new QTableWidget(0, 2);
    rejilla->setObjectName(QStringLiteral("MSF"));
    rejilla->setHorizontalHeaderLabels({"Nº", "Código"});
    rejilla->setItemDelegateForColumn(COLUMNA_CODIGO, new Editor_De_Codigo(rejilla));
    rejilla->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::AnyKeyPressed);
    rejilla->setSelectionBehavior(QAbstractItemView::SelectRows);
    rejilla->setSelectionMode(QAbstractItemView::SingleSelection);
    rejilla->setAlternatingRowColors(true);
    rejilla->setTabKeyNavigation(false);
    rejilla->setWordWrap(false);
    rejilla->verticalHeader()->hide();
    rejilla->verticalHeader()->setDefaultSectionSize(rejilla->fontMetrics().height() + 8);
    rejilla->horizontalHeader()->setStretchLastSection(true);
    rejilla->horizontalHeader()->setHighlightSections(false);
    rejilla->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    rejilla->setColumnWidth(COLUMNA_NUMERO, ANCHO_NUMERO);
    return rejilla;
}

QTableWidgetItem* Celda_Numero(int numero)
{
    auto* const celda = new QTableWidgetItem(QString::number(numero));
    celda->setFlags(celda->flags() & ~Qt::ItemIsEditable);
    return celda;
}

} // namespace

FrmCodigos::FrmCodigos() : Ventana(QStringLiteral("FrmCodigos")), MSF(Hacer_Rejilla())
{
    setWindowTitle(QStringLiteral("Librerías de Códigos"));
    panel = new Panel_Librerias(modelo, [this] { Mostrar_Todo(); });
    Hacer();
    Recordar_Posicion("CODIGOS", 1);
    connect(MSF, &QTableWidget::currentCellChanged, this, [this](int fila) { modelo.fila = fila; });
    connect(MSF, &QTableWidget::cellChanged, this, &FrmCodigos::Codigo_Tecleado);
    connect(&Sucesos::Unico(), &Sucesos::librerias_cambiadas, this, [this] {
        modelo.Actualizar();
        Mostrar_Todo();
    });
    modelo.Cargar();
    Mostrar_Todo();
    resize(640, 430);
}

void FrmCodigos::Hacer()
{
    const auto refrescar = [this] { Mostrar_Todo(); };
    panel->Anadir_Boton(
        Piezas::Boton("BtnRecLib", "&Recibir", "Recibir una librería de la máquina"),
        [this] { modelo.Recibir(); });
    QLineEdit* const TxtBuscar = Caja_De_Busqueda(this, modelo, refrescar);
    QGroupBox* const codigos = Piezas::Grupo(" Códigos ");
    auto* const lista = new QVBoxLayout;
    lista->addWidget(TxtBuscar);
    lista->addWidget(MSF, 1);
    auto* const dentro = new QHBoxLayout(codigos);
    dentro->addLayout(lista, 1);
    dentro->addLayout(
        Columna_De_Botones(this,
                           {{u"BtnADDCod", u"&Añadir", u"Añadir un código al final de la lista",
                             [this] { modelo.Anadir(); }},
                            {u"BtnIns", u"&Insertar", u"Insertar un código antes del seleccionado",
                             [this] { modelo.Insertar(); }},
                            {u"BtnEdiCod", u"&Editar", u"Editar el valor del Código seleccionado",
                             [this] { modelo.Editar_Codigo(); }},
                            {u"BTnEli", u"&Eliminar", u"Elimar el código seleccionado",
                             [this] { modelo.Eliminar_Codigo(); }},
                            {u"BtnOrd", u"&Ordenar", u"Ordenar los códigos alfabéticamente",
                             [this] { modelo.Ordenar(); }}},
                           refrescar));
    BtnGua = Piezas::Boton("BtnGua", "&Guardar", "Guardar  librería de códigos");
    QPushButton* const BtnSal = Piezas::Boton("BtnSal", "&Cerrar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "Ay&uda");
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(panel);
    caja->addWidget(codigos, 1);
    caja->addLayout(Piezas::Fila_De_Botones({BtnGua, BtnSal, btnAyuda}));
    Poner_Botones(nullptr, BtnSal);
    MSF->installEventFilter(this);
    MSF->setFocus();

    connect(BtnGua, &QPushButton::clicked, this, [this] {
        modelo.Guardar();
        Mostrar_Todo();
    });
    connect(BtnSal, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("codigos"); });
    const auto* const guardar = new QShortcut(QKeySequence::Save, this);
    connect(guardar, &QShortcut::activated, BtnGua, &QPushButton::click);
}

void FrmCodigos::Mostrar_Todo()
{
    panel->Mostrar(modelo.Nombres(), modelo.Tag());
    BtnGua->setEnabled(modelo.cambiado);
    Mostrar_Codigos();
}

void FrmCodigos::Mostrar_Codigos()
{
    const QSignalBlocker sin_avisos(MSF);
    MSF->setRowCount(int(modelo.codigos.size()));
    for (int i = 0; i < MSF->rowCount(); ++i) {
        MSF->setItem(i, COLUMNA_NUMERO, Celda_Numero(i + 1));
        MSF->setItem(i, COLUMNA_CODIGO, new QTableWidgetItem(modelo.codigos[i].codigo));
    }
    MSF->setCurrentCell(modelo.fila, COLUMNA_CODIGO);
}

void FrmCodigos::Codigo_Tecleado(int fila, int columna)
{
    if (columna != COLUMNA_CODIGO) return;
    modelo.Poner_Codigo(fila, MSF->item(fila, columna)->text());
    // The grid is in the midst of taking the text: only the cell is put right now.
    const QSignalBlocker sin_avisos(MSF);
    MSF->item(fila, columna)->setText(modelo.codigos.value(fila).codigo);
    BtnGua->setEnabled(modelo.cambiado);
}

bool FrmCodigos::eventFilter(QObject* objeto, QEvent* evento)
{
    // The box of a cell hands on the keys that it has no use for.
    if (objeto != MSF || evento->type() != QEvent::KeyPress ||
        MSF->isPersistentEditorOpen(MSF->currentItem()))
        return Ventana::eventFilter(objeto, evento);
    switch (static_cast<QKeyEvent*>(evento)->key()) {
    case Qt::Key_Insert:
        findChild<QPushButton*>("BtnIns")->click();
        return true;
    case Qt::Key_Delete:
        findChild<QPushButton*>("BTnEli")->click();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (MSF->currentItem()) MSF->editItem(MSF->item(MSF->currentRow(), COLUMNA_CODIGO));
        return true;
    default:
        return Ventana::eventFilter(objeto, evento);
    }
}

void FrmCodigos::closeEvent(QCloseEvent* evento)
{
    if (Descargada() || modelo.Soltar())
        Ventana::closeEvent(evento);
    else
        evento->ignore();
}
