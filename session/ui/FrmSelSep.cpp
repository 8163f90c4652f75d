#include "session/ui/FrmSelSep.h"

#include "core/Trozos.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"
#include "session/Dialogos_Pequenos.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

FrmSelSep::FrmSelSep() : Ventana(QStringLiteral("FrmSelSep"))
{
    setWindowTitle(QStringLiteral("Seleccione Separador de Campos"));
    Combo1 = Piezas::Combo("Combo1");
    Combo1->addItems(Nombres_Separador());
    Combo1->setProperty("Tag", Tag_Separador());
    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    auto* const botones = Piezas::Fila_De_Botones({BtnAce, BtnCan});
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(Combo1);
    caja->addLayout(botones);
    setMinimumWidth(320);
    Poner_Botones(BtnAce, BtnCan);
    connect(BtnAce, &QPushButton::clicked, this, &FrmSelSep::BtnAce_Click);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Ocultar);
}

void FrmSelSep::BtnAce_Click()
{
    Separador =
        Trozo(Combo1->currentIndex() + 1, Combo1->property("Tag").toString(), QChar(SEP_LISTA));
    Ocultar();
}

QString Pedir_Separador()
{
    const QPointer<FrmSelSep> frm(&Dialogos::Unico<FrmSelSep>());
    frm->Separador.clear();
    frm->Mostrar_Modal();
    return frm ? frm->Separador : QString();
}
