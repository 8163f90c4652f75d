#include "core/ui/FrmCopias.h"

#include "core/ui/Piezas.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

FrmCopias::FrmCopias() : Ventana(QStringLiteral("FrmCopias"))
{
    setWindowTitle(QStringLiteral("Recuperar de la copia"));
    LstCopias = Piezas::Lista("LstCopias");
    LstCopias->setSelectionMode(QAbstractItemView::SingleSelection);
    LstCopias->setMinimumSize(420, 180);
    BtnRecuperar = Piezas::Boton("BtnRecuperar", "&Recuperar");
    QPushButton* const BtnCerrar = Piezas::Boton("BtnCerrar", "&Cerrar");
    QLabel* const lugar = Piezas::Rotulo(Lugar_De_La_Base(), "LblBase");
    lugar->setWordWrap(true);

    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(lugar);
    caja->addWidget(Piezas::Rotulo("Copias que hay, la más reciente primero:"));
    caja->addWidget(LstCopias, 1);
    caja->addLayout(Piezas::Fila_De_Botones({BtnRecuperar, BtnCerrar}));
    Poner_Botones(BtnRecuperar, BtnCerrar);
    connect(BtnRecuperar, &QPushButton::clicked, this, &FrmCopias::BtnRecuperar_Click);
    connect(BtnCerrar, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(LstCopias, &QListWidget::currentRowChanged, this,
            [this](int fila) { BtnRecuperar->setEnabled(fila >= 0 && copias[fila].sana); });
    Llenar();
}

void FrmCopias::Llenar()
{
    copias = Copias::Lista();
    LstCopias->clear();
    for (const Copias::Copia& c : std::as_const(copias))
        LstCopias->addItem(
            Copias::Texto(c) +
            (c.sana ? QString() : QStringLiteral(" (dañada, no se puede recuperar)")));
    BtnRecuperar->setEnabled(false);
    LstCopias->setCurrentRow(copias.isEmpty() ? -1 : 0);
}

void FrmCopias::BtnRecuperar_Click()
{
    const int fila = LstCopias->currentRow();
    if (fila < 0) return;
    if (Copias::Recuperar_Preguntando(copias[fila]))
        Descargar();
    else
        Llenar();
}
