#include "transfer/ui/FrmSplash.h"

#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"
#include "session/ui/frmDescargas.h"
#include "transfer/enlace/Puerto_Qt.h"
#include "transfer/ui/Dibujo_Transferencia.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

std::function<std::unique_ptr<Puerto_Serie>()> FrmSplash::Hacer_Puerto = [] {
    return std::unique_ptr<Puerto_Serie>(std::make_unique<Puerto_Qt>());
};

FrmSplash::FrmSplash(const QString& nombre)
    : Ventana(nombre), descarga(new Descarga(Hacer_Puerto(), this))
{
    setWindowTitle(QStringLiteral("Descarga de Datos"));
    Label1 = Piezas::Rotulo({}, "Label1");
    Label1->setWordWrap(true);
    Label1->setMinimumHeight(Label1->fontMetrics().lineSpacing() * 2 + 4);
    BtnIniciar = Piezas::Boton("BtnIniciar", "Iniciar");
    // The label's underlined letter reaches the button.
    Label1->setBuddy(BtnIniciar);
    auto* const caja = new QVBoxLayout(this);
    // The picture stands in the corner of the dialog, since its places count from
    // there.
    caja->setContentsMargins(0, 0, 0, 12);
    caja->addWidget(
        new Dibujo_Transferencia({"aparato.png", "pc.png"}, LUGARES_RAYO_DESCARGA, *descarga), 0,
        Qt::AlignLeft | Qt::AlignTop);
    auto* const abajo = new QVBoxLayout;
    abajo->setContentsMargins(14, 0, 14, 0);
    abajo->addWidget(Label1);
    abajo->addWidget(BtnIniciar, 0, Qt::AlignHCenter);
    caja->addLayout(abajo);
    Poner_Botones(BtnIniciar, nullptr);
    Conectar();
}

void FrmSplash::Conectar()
{
    Label1->setText(descarga->Etiqueta());
    BtnIniciar->setEnabled(descarga->Iniciar_Habilitado());
    connect(descarga, &Descarga::etiqueta_cambiada, Label1, &QLabel::setText);
    connect(descarga, &Descarga::iniciar_habilitado_cambiado, BtnIniciar, &QWidget::setEnabled);
    connect(descarga, &Descarga::ocultar, this, &Ventana::Ocultar);
    connect(descarga, &Descarga::cerrar, this, &Ventana::Descargar);
    connect(descarga, &Descarga::reclamada, this, &Ventana::Mostrar);
    connect(descarga, &Descarga::mostrar_sesiones, this, [] {
        auto& frm = Dialogos::Unico<frmDescargas>();
        frm.Mostrar();
        frm.Refrescar();
    });
    connect(BtnIniciar, &QPushButton::clicked, descarga, &Descarga::BtnIniciar);
}

void FrmSplash::Colocar()
{
    Centrar_Horizontal(*this);
}

bool FrmSplash::Consiente_Cerrar()
{
    return descarga->Confirmar_Cierre();
}

void FrmSplash::Al_Descargar()
{
    descarga->Abandonar();
}
