#include "core/ui/FrmKRT.h"

#include "core/ui/Piezas.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

FrmKRT::FrmKRT() : Ventana(QStringLiteral("FrmKRT"))
{
    setWindowTitle(QStringLiteral("Seleccione modelo de aparato"));
    List1 = Piezas::Lista("List1");
    List1->setSelectionMode(QAbstractItemView::SingleSelection);
    List1->setMinimumSize(200, 220);
    Image1 = Piezas::Imagen("Image1", 220, 220);
    QPushButton* const BtnSalir = Piezas::Boton("BtnSalir", "&Aceptar");

    auto* const arriba = new QHBoxLayout;
    arriba->addWidget(List1, 1);
    arriba->addWidget(Image1);
    auto* const caja = new QVBoxLayout(this);
    caja->addLayout(arriba);
    caja->addWidget(BtnSalir, 0, Qt::AlignRight);
    Poner_Botones(BtnSalir, nullptr);
    connect(List1, &QListWidget::itemSelectionChanged, this, &FrmKRT::List1_Click);
    connect(List1, &QListWidget::itemDoubleClicked, this, &FrmKRT::BtnSalir_Click);
    connect(BtnSalir, &QPushButton::clicked, this, &FrmKRT::BtnSalir_Click);
    modelos = Leer_Estaciones();
    List1->addItems(modelos.nombres);
    List1->setProperty("Tag", modelos.fotos);
    List1->setCurrentRow(-1);
}

int FrmKRT::Elegido() const
{
    // A list that gets the focus has a current row before anything is selected.
    const auto elegidos = List1->selectionModel()->selectedRows();
    return elegidos.isEmpty() ? -1 : elegidos.constFirst().row();
}

void FrmKRT::List1_Click()
{
    Piezas::Poner_Imagen(*Image1, Foto_De_Entrada(modelos, Elegido()));
}

void FrmKRT::BtnSalir_Click()
{
    if (Aceptar_FrmKRT(modelos, Elegido())) Descargar();
}
