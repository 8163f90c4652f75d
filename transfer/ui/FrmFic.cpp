#include "transfer/ui/FrmFic.h"

#include "core/ModEstTotal.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int ANCHO_NFICHERO = 50;
}

FrmFic::FrmFic() : Ventana(QStringLiteral("FrmFic"))
{
    setWindowTitle(QStringLiteral("Introduzca el nombre de Sesión"));
    Txt = Piezas::Caja("Txt", ANCHO_NFICHERO);
    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    auto* const botones = Piezas::Fila_De_Botones({BtnAce, BtnCan});
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(Piezas::Rotulo("Nombre de Sesión:"));
    caja->addWidget(Txt);
    caja->addLayout(botones);
    setMinimumWidth(360);
    Poner_Botones(BtnAce, BtnCan);
    connect(BtnAce, &QPushButton::clicked, this, &FrmFic::BtnAce_Click);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
}

void FrmFic::BtnAce_Click()
{
    if (Basico::Trim(Txt->text()).isEmpty()) {
        Interfaz_Actual().Mensaje("El Nombre del Fichero no puede quedar en blanco",
                                  Icono::Exclamacion);
        Txt->setFocus();
        return;
    }
    Nombre = Txt->text();
    Descargar();
}

QString Pedir_Nombre_Sesion()
{
    const QPointer<FrmFic> frm(&Dialogos::Unico<FrmFic>());
    frm->Mostrar_Modal();
    return frm ? frm->Nombre : QString();
}
