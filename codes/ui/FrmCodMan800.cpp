#include "codes/ui/FrmCodMan800.h"

#include "core/ui/Piezas.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int ANCHO_CAJA = 260;
}

FrmCodMan800::FrmCodMan800() : Ventana(QStringLiteral("FrmCodMan800"))
{
    setWindowTitle(QStringLiteral("Crear/Editar Códigos"));
    const Serie_Librerias& serie = Librerias_De(Serie::B);
    txtCodigo = Piezas::Caja("txtCodigo", serie.largo_codigo);
    txtCodigo->setMinimumWidth(ANCHO_CAJA);
    cmbEntidad = Piezas::Combo("cmbEntidad");
    txtCapa = Piezas::Caja("txtCapa", serie.largo_capa);
    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnSal = Piezas::Boton("BtnSal", "&Salir");
    auto* const datos = new QFormLayout;
    datos->addRow("Código:", txtCodigo);
    datos->addRow("Entidad:", cmbEntidad);
    datos->addRow("Capa:", txtCapa);
    auto* const caja = new QVBoxLayout(this);
    caja->addLayout(datos);
    caja->addLayout(Piezas::Fila_De_Botones({BtnAce, BtnSal}));
    Poner_Botones(BtnAce, BtnSal);
    connect(BtnAce, &QPushButton::clicked, this, &FrmCodMan800::BtnAce_Click);
    connect(BtnSal, &QPushButton::clicked, this, &Ventana::Descargar);
}

void FrmCodMan800::Mostrar_Con(Ficha_Codigo& ficha)
{
    const QPointer<FrmCodMan800> viva(this);
    modelo = &ficha;
    setWindowTitle(ficha.titulo);
    txtCodigo->setText(ficha.codigo);
    txtCapa->setText(ficha.capa);
    cmbEntidad->clear();
    cmbEntidad->addItems(ficha.nombres);
    cmbEntidad->setProperty("Tag", ficha.tag);
    cmbEntidad->setCurrentIndex(ficha.entidad);
    txtCodigo->setFocus();
    txtCodigo->selectAll();
    Mostrar_Modal();
    if (viva && modelo == &ficha) modelo = nullptr;
}

void FrmCodMan800::BtnAce_Click()
{
    if (!modelo) return;
    modelo->codigo = txtCodigo->text();
    modelo->entidad = cmbEntidad->currentIndex();
    modelo->capa = txtCapa->text();
    if (modelo->Aceptar())
        Descargar();
    else
        txtCodigo->setFocus();
}
