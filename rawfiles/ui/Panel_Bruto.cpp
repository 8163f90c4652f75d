#include "rawfiles/ui/Panel_Bruto.h"

#include "core/ui/Piezas.h"
#include "rawfiles/ModFBruto.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

Panel_Bruto::Panel_Bruto(const Dialogo_Bruto& cual, std::function<void()> esconder)
    : dialogo(cual), ocultar(std::move(esconder)), OptFor(new QButtonGroup(this))
{
    QGroupBox* const Frame1 =
        Piezas::Grupo(QStringLiteral("Tipo de Exportación"), QStringLiteral("Frame1"));
    auto* const opciones = new QVBoxLayout(Frame1);
    for (int i = 0; i < int(std::size(dialogo.opciones)); ++i) {
        auto* const boton = new QRadioButton(dialogo.opciones[i]);
        boton->setObjectName(QStringLiteral("OptFor"));
        boton->setProperty("Index", i);
        OptFor->addButton(boton, i);
        opciones->addWidget(boton);
    }
    ChkGenerales = Piezas::Casilla(QStringLiteral("ChkGenerales"),
                                   QStringLiteral("Incluir los registros generales"));
    BtnAce = Piezas::Boton(QStringLiteral("BtnAce"), QStringLiteral("&Aceptar"));
    BtnCan = Piezas::Boton(QStringLiteral("BtnCan"), QStringLiteral("&Cancelar"));
    auto* const caja = new QVBoxLayout(this);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->addWidget(Frame1);
    caja->addWidget(ChkGenerales);
    caja->addLayout(Piezas::Fila_De_Botones({BtnAce, BtnCan}));
    setMinimumWidth(300);
    connect(BtnAce, &QPushButton::clicked, this, &Panel_Bruto::BtnAce_Click);
    connect(ChkGenerales, &QCheckBox::clicked, this, Poner_Incluir_Generales);
}

void Panel_Bruto::Cargar(const Sesion_Elegida& nueva)
{
    sesion = nueva;
    const Familia& familia = Familia_De(sesion.maquina);
    OptFor->button(0)->setChecked(true);
    OptFor->button(1)->setEnabled(dialogo.segunda(familia));
    ChkGenerales->setVisible(familia.serie == Serie::A);
    ChkGenerales->setChecked(Incluir_Generales());
}

void Panel_Bruto::BtnAce_Click()
{
    Exportar_En_Bruto(dialogo, sesion, OptFor->checkedId(), ChkGenerales->isChecked(), ocultar);
}
