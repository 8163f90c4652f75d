#include "conversions/ui/EjeLandxml.h"

#include "conversions/biblioteca/Flujo_Conversion.h"
#include "core/ui/Piezas.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

EjeLandxml::EjeLandxml() : Ventana(QStringLiteral("EjeLandxml"))
{
    setWindowTitle(QStringLiteral("Selección de tramos desde LandXML"));
    listEjes = Piezas::Lista("listEjes");
    listEjes->setSelectionMode(QAbstractItemView::SingleSelection);
    listEjes->setMinimumSize(360, 220);
    listEjes->addItems(Tomar_Lista());
    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    auto* const botones = Piezas::Fila_De_Botones({BtnAce, BtnCan});
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(listEjes);
    caja->addLayout(botones);
    Poner_Botones(BtnAce, BtnCan);
    connect(listEjes, &QListWidget::itemDoubleClicked, this, &EjeLandxml::BtnAce_Click);
    connect(BtnAce, &QPushButton::clicked, this, &EjeLandxml::BtnAce_Click);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Ocultar);
}

void EjeLandxml::BtnAce_Click()
{
    // A list that gets the focus has a current row before anything is selected.
    const QList<QListWidgetItem*> elegidas = listEjes->selectedItems();
    Indice = elegidas.isEmpty() ? -1 : listEjes->row(elegidas.constFirst());
    Texto = elegidas.isEmpty() ? QString() : elegidas.constFirst()->text();
    Ocultar();
}
