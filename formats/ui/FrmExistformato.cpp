#include "formats/ui/FrmExistformato.h"

#include "core/Ayuda.h"
#include "core/ui/Piezas.h"
#include "formats/ui/Panel_Campos.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

FrmExistformato::FrmExistformato() : Ventana(QStringLiteral("FrmExistformato"))
{
    setWindowTitle(QStringLiteral("Formatos"));
    CbFormatos = Piezas::Combo("CbFormatos");
    TxtDes = Piezas::Caja("TxtDes");
    TxtDes->setReadOnly(true);
    panel = new Panel_Campos("Btnsubir", "BtnBajar");
    Check1 = Piezas::Casilla("Check1", " Incluir Cabeceras");
    Check2 = Piezas::Casilla("Check2", " Modificable");
    Check2->setEnabled(false); // it tells, and changes nothing here
    Label2 = Piezas::Rotulo("Modificable", "Label2");
    Label2->setStyleSheet("color: #ff0000");
    Hacer();
}

void FrmExistformato::Hacer()
{
    QPushButton* const BtnAceptar = Piezas::Boton("BtnAceptar", "&Aceptar");
    QPushButton* const BtnCancelar = Piezas::Boton("BtnCancelar", "&Cancelar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    auto* const datos = new QFormLayout;
    datos->addRow("Nombre del formato:", CbFormatos);
    datos->addRow("Descripción:", TxtDes);
    auto* const casillas = new QHBoxLayout;
    casillas->addWidget(Check1);
    casillas->addWidget(Check2);
    casillas->addWidget(Label2);
    casillas->addStretch();
    auto* const botones = Piezas::Fila_De_Botones({BtnAceptar, BtnCancelar, btnAyuda});
    auto* const caja = new QVBoxLayout(this);
    caja->addLayout(datos);
    caja->addWidget(panel, 1);
    caja->addLayout(casillas);
    caja->addLayout(botones);
    Poner_Botones(BtnAceptar, BtnCancelar);

    connect(CbFormatos, &QComboBox::activated, this, &FrmExistformato::CbFormatos_Click);
    connect(Check1, &QCheckBox::toggled, this, [this](bool si) {
        if (modelo) modelo->cabeceras = si;
    });
    connect(BtnAceptar, &QPushButton::clicked, this, &FrmExistformato::BtnAceptar_Click);
    connect(BtnCancelar, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("expexist"); });
}

void FrmExistformato::Mostrar_Con(Formato_Existente& m)
{
    modelo = &m;
    const QPointer<FrmExistformato> viva(this);
    setWindowTitle(m.titulo);
    CbFormatos->clear();
    CbFormatos->addItems(m.nombres);
    CbFormatos->setCurrentIndex(m.indice);
    panel->Atar(&m.listas);
    Mostrar_Formato();
    CbFormatos->setFocus();
    Mostrar_Modal();
    if (viva && modelo == &m) {
        panel->Atar(nullptr);
        modelo = nullptr;
    }
}

void FrmExistformato::Mostrar_Formato()
{
    TxtDes->setText(modelo->descripcion);
    panel->Mostrar();
    panel->Bloquear(modelo->bloqueado);
    Check1->setEnabled(!modelo->bloqueado);
    Check1->setChecked(modelo->cabeceras);
    Check2->setVisible(modelo->check2_visible);
    Check2->setChecked(modelo->check2_visible && modelo->indice >= 0);
    Label2->setText(modelo->label2);
    Label2->setVisible(modelo->label2_visible);
}

void FrmExistformato::CbFormatos_Click(int indice)
{
    if (!modelo) return;
    modelo->Elegir(indice);
    Mostrar_Formato();
}

void FrmExistformato::BtnAceptar_Click()
{
    if (modelo && modelo->Aceptar([this] { Ocultar(); })) Descargar();
}
