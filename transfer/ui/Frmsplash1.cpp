#include "transfer/ui/Frmsplash1.h"

#include "core/ui/Piezas.h"
#include "transfer/ui/Dibujo_Transferencia.h"
#include "transfer/ui/FrmSplash.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLabel* Rotulo_De_Dos_Lineas(const QString& nombre)
{
    QLabel* const rotulo = Piezas::Rotulo({}, nombre);
    rotulo->setWordWrap(true);
    rotulo->setMinimumHeight(rotulo->fontMetrics().lineSpacing() * 2 + 4);
    return rotulo;
}

} // namespace

Frmsplash1::Frmsplash1()
    : Ventana(QStringLiteral("Frmsplash1")), envio(new Envio(FrmSplash::Hacer_Puerto(), this))
{
    setWindowTitle(QStringLiteral("Envío de Datos"));
    Label1 = Rotulo_De_Dos_Lineas("Label1");
    LblCuenta = Rotulo_De_Dos_Lineas("LblCuenta");
    ProgressBar1 = new QProgressBar;
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setRange(0, 1);
    ProgressBar1->setValue(0);
    Check1 = Piezas::Casilla("Check1", "Fichero Seguimiento");
    BtnIniciar = Piezas::Boton("BtnIniciar", "Iniciar");
    // The label's underlined letter reaches the button.
    Label1->setBuddy(BtnIniciar);
    auto* const caja = new QVBoxLayout(this);
    // The picture stands in the corner of the dialog, since its places count from there.
    caja->setContentsMargins(0, 0, 0, 12);
    caja->addWidget(new Dibujo_Transferencia({"pc.png", "aparato.png"}, LUGARES_RAYO_ENVIO, *envio),
                    0, Qt::AlignLeft | Qt::AlignTop);
    auto* const abajo = new QVBoxLayout;
    abajo->setContentsMargins(14, 0, 14, 0);
    abajo->addWidget(Label1);
    abajo->addWidget(ProgressBar1);
    abajo->addWidget(LblCuenta);
    auto* const botones = new QHBoxLayout;
    botones->addWidget(Check1, 1);
    botones->addWidget(BtnIniciar);
    abajo->addLayout(botones);
    caja->addLayout(abajo);
    Poner_Botones(BtnIniciar, nullptr);
    BtnIniciar->setFocus();
    Conectar();
}

void Frmsplash1::Conectar()
{
    Label1->setText(envio->Etiqueta());
    connect(envio, &Envio::etiqueta_cambiada, Label1, &QLabel::setText);
    connect(envio, &Envio::cuenta_cambiada, LblCuenta, &QLabel::setText);
    connect(envio, &Envio::barra_cambiada, this, [this](qint64 valor, qint64 maximo) {
        ProgressBar1->setRange(0, int(qMax<qint64>(maximo, 1)));
        ProgressBar1->setValue(int(valor));
    });
    connect(envio, &Envio::iniciar_habilitado_cambiado, this, [this](bool habilitado) {
        BtnIniciar->setEnabled(habilitado);
        Check1->setEnabled(habilitado);
    });
    connect(Check1, &QCheckBox::toggled, envio, &Envio::Poner_Seguimiento);
    connect(envio, &Envio::ocultar, this, &Ventana::Ocultar);
    connect(envio, &Envio::cerrar, this, &Ventana::Descargar);
    connect(envio, &Envio::reclamada, this, &Ventana::Mostrar);
    connect(BtnIniciar, &QPushButton::clicked, envio, &Envio::BtnIniciar);
}

void Frmsplash1::Colocar()
{
    Centrar_Horizontal(*this);
}

bool Frmsplash1::Consiente_Cerrar()
{
    return envio->Confirmar_Cierre();
}

void Frmsplash1::Al_Descargar()
{
    envio->Abandonar();
}
