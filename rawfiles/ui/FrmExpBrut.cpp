#include "rawfiles/ui/FrmExpBrut.h"

#include "rawfiles/Exportar_En_Bruto.h"
#include "rawfiles/ui/Panel_Bruto.h"

#include <QPushButton>
#include <QVBoxLayout>

FrmExpBrut::FrmExpBrut()
    : Ventana(QStringLiteral("FrmExpBrut")),
      panel(new Panel_Bruto(Dialogo_FrmExpBrut(), [this] { Ocultar(); }))
{
    setWindowTitle(Dialogo_FrmExpBrut().titulo);
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(panel);
    Poner_Botones(panel->BtnAce, panel->BtnCan);
    connect(panel->BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
}

void FrmExpBrut::Abrir(const Sesion_Elegida& sesion)
{
    panel->Cargar(sesion);
    Mostrar_Modal();
}
