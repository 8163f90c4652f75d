#include "transfer/ui/FrmSplash.h"

#include "core/ModEstTotal.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"
#include "session/ui/frmDescargas.h"
#include "transfer/enlace/Puerto_Qt.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int TWIPS_POR_PUNTO = 15;

QPoint Punto_De(const Lugar_Rayo& lugar)
{
    return {lugar.izquierda / TWIPS_POR_PUNTO, lugar.arriba / TWIPS_POR_PUNTO};
}

} // namespace

std::function<std::unique_ptr<Puerto_Serie>()> FrmSplash::Hacer_Puerto = [] {
    return std::unique_ptr<Puerto_Serie>(std::make_unique<Puerto_Qt>());
};

FrmSplash::FrmSplash()
    : Ventana(QStringLiteral("FrmSplash")), descarga(new Descarga(Hacer_Puerto(), this))
{
    setWindowTitle(QStringLiteral("Descarga de Datos"));
    Label1 = Piezas::Rotulo({}, "Label1");
    Label1->setWordWrap(true);
    Label1->setMinimumHeight(Label1->fontMetrics().lineSpacing() * 2 + 4);
    BtnIniciar = Piezas::Boton("BtnIniciar", "Iniciar");
    // The label's underlined letter reaches the button.
    Label1->setBuddy(BtnIniciar);
    QWidget* const dibujo = Hacer_Dibujo();
    auto* const caja = new QVBoxLayout(this);
    // The picture stands in the corner of the dialog, since its places count from
    // there.
    caja->setContentsMargins(0, 0, 0, 12);
    caja->addWidget(dibujo, 0, Qt::AlignLeft | Qt::AlignTop);
    auto* const abajo = new QVBoxLayout;
    abajo->setContentsMargins(14, 0, 14, 0);
    abajo->addWidget(Label1);
    abajo->addWidget(BtnIniciar, 0, Qt::AlignHCenter);
    caja->addLayout(abajo);
    Poner_Botones(BtnIniciar, nullptr);
    Conectar();
}

QWidget* FrmSplash::Hacer_Dibujo()
{
    auto* const dibujo = new QWidget;
    dibujo->setFixedSize(320, 150);
    QLabel* const aparato = Piezas::Imagen("Image1", 80, 110);
    aparato->setParent(dibujo);
    aparato->move(10, 24);
    Piezas::Poner_Imagen(*aparato, En_Instalacion("bmp/aparato.png"));
    QLabel* const ordenador = Piezas::Imagen("Image2", 110, 110);
    ordenador->setParent(dibujo);
    ordenador->move(188, 24);
    Piezas::Poner_Imagen(*ordenador, En_Instalacion("bmp/pc.png"));
    Rayo = Piezas::Imagen("Rayo", 32, 32);
    Rayo->setParent(dibujo);
    if (!Piezas::Poner_Imagen(*Rayo, En_Instalacion("bmp/rayo.png"))) Rayo->setText("⚡");
    Rayo->move(Punto_De(LUGARES_RAYO_DESCARGA[0]));
    return dibujo;
}

void FrmSplash::Conectar()
{
    Label1->setText(descarga->Etiqueta());
    BtnIniciar->setEnabled(descarga->Iniciar_Habilitado());
    Rayo->setVisible(descarga->Rayo_Visible());
    connect(descarga, &Descarga::etiqueta_cambiada, Label1, &QLabel::setText);
    connect(descarga, &Descarga::iniciar_habilitado_cambiado, BtnIniciar, &QWidget::setEnabled);
    connect(descarga, &Descarga::rayo_cambiado, Rayo, &QWidget::setVisible);
    connect(descarga, &Descarga::rayo_movido, Rayo,
            [this](int lugar) { Rayo->move(Punto_De(LUGARES_RAYO_DESCARGA[lugar])); });
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

void FrmSplash::Al_Descargar()
{
    descarga->Abandonar();
}
