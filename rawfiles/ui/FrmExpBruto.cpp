#include "rawfiles/ui/FrmExpBruto.h"

#include "rawfiles/Exportar_En_Bruto.h"
#include "rawfiles/ui/Panel_Bruto.h"

#include <QPushButton>
#include <QVBoxLayout>

FrmExpBruto::FrmExpBruto()
    : Ventana(QStringLiteral("FrmExpBruto")),
      panel(new Panel_Bruto(Dialogo_FrmExpBruto(), [this] { Ocultar(); }))
{
    setWindowTitle(Dialogo_FrmExpBruto().titulo);
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(panel);
    Poner_Botones(panel->BtnAce, panel->BtnCan);
    connect(panel->BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
}

void FrmExpBruto::Abrir(const Sesion_Elegida& sesion)
{
    panel->Cargar(sesion);
    Mostrar_Modal();
}
