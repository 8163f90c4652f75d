#include "rawfiles/ui/FrmImpBru.h"

#include "core/ui/Piezas.h"
#include "rawfiles/Importar_De_Disco.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

// The width of the column that holds a session's name.
constexpr int LARGO_NOMBRE = 50;

} // namespace

FrmImpBru::FrmImpBru() : Ventana(QStringLiteral("FrmImpBru")), OptFor(new QButtonGroup(this))
{
    setWindowTitle(QStringLiteral("Importar Fichero en Bruto"));
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(Hacer_Datos());
    caja->addWidget(Hacer_Formato());
    QPushButton* const BtnAce = Piezas::Boton(QStringLiteral("BtnAce"), QStringLiteral("&Aceptar"));
    QPushButton* const BtnCan =
        Piezas::Boton(QStringLiteral("BtnCan"), QStringLiteral("&Cancelar"));
    caja->addLayout(Piezas::Fila_De_Botones({BtnAce, BtnCan}));
    setMinimumWidth(440);
    Poner_Botones(BtnAce, BtnCan);
    connect(BtnAce, &QPushButton::clicked, this, &FrmImpBru::BtnAce_Click);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
    Cargar();
    Text1->setFocus();
}

QWidget* FrmImpBru::Hacer_Datos()
{
    QGroupBox* const Frame2 =
        Piezas::Grupo(QStringLiteral("Datos del Fichero a Importar:"), QStringLiteral("Frame2"));
    auto* const filas = new QFormLayout(Frame2);
    Text1 = Piezas::Caja(QStringLiteral("Text1"));
    QPushButton* const BtnSel = Piezas::Boton(QStringLiteral("BtnSel"), QStringLiteral("..."),
                                              QStringLiteral("Seleccione el Fichero a Importar"));
    BtnSel->setAccessibleName(BtnSel->toolTip());
    BtnSel->setMaximumWidth(BtnSel->fontMetrics().horizontalAdvance(QStringLiteral("MMMM")));
    auto* const fila = new QHBoxLayout;
    fila->addWidget(Text1, 1);
    fila->addWidget(BtnSel);
    auto* const rotulo = Piezas::Rotulo(QStringLiteral("Fichero:"));
    rotulo->setBuddy(Text1);
    filas->addRow(rotulo, fila);
    Text2 = Piezas::Caja(QStringLiteral("Text2"), LARGO_NOMBRE);
    filas->addRow(QStringLiteral("Nombre de Fichero:"), Text2);
    CbTipo = Piezas::Combo(QStringLiteral("CbTipo"));
    filas->addRow(QStringLiteral("Tipo de Fichero:"), CbTipo);
    connect(BtnSel, &QPushButton::clicked, this, &FrmImpBru::BtnSel_Click);
    return Frame2;
}

QWidget* FrmImpBru::Hacer_Formato()
{
    QGroupBox* const Frame1 =
        Piezas::Grupo(QStringLiteral("Formato del Fichero:"), QStringLiteral("Frame1"));
    auto* const opciones = new QHBoxLayout(Frame1);
    constexpr const char16_t* TEXTOS[] = {u"Formato Máquina", u"Formato Lineas", u"Formato HD-6"};
    for (int i = 0; i < int(std::size(TEXTOS)); ++i) {
        auto* const boton = new QRadioButton(QString::fromUtf16(TEXTOS[i]));
        boton->setObjectName(QStringLiteral("OptFor"));
        boton->setProperty("Index", i);
        OptFor->addButton(boton, i);
        opciones->addWidget(boton);
    }
    return Frame1;
}

void FrmImpBru::Cargar()
{
    const Dialogo_Importar inicial = Abrir_Importar();
    CbTipo->addItems(inicial.tipos.textos);
    CbTipo->setProperty("Tag", inicial.tipos.tag);
    CbTipo->setCurrentIndex(qMin(inicial.tipo, CbTipo->count() - 1));
    OptFor->button(inicial.opcion)->setChecked(true);
}

void FrmImpBru::BtnSel_Click()
{
    const QPointer<FrmImpBru> aqui(this);
    const auto elegido = Elegir_Bruto();
    if (aqui && elegido) Text1->setText(*elegido);
}

void FrmImpBru::BtnAce_Click()
{
    const QPointer<FrmImpBru> aqui(this);
    const auto hecho = Importar_De_Disco({.tipos = {{}, CbTipo->property("Tag").toString()},
                                          .tipo = CbTipo->currentIndex(),
                                          .opcion = OptFor->checkedId(),
                                          .fichero = Text1->text(),
                                          .nombre = Text2->text()});
    if (aqui && hecho) Descargar();
}
