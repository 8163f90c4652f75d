#include "core/ui/frmPantalla.h"

#include "core/ModEstTotal.h"
#include "core/ui/About.h"
#include "core/ui/Piezas.h"

#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

frmPantalla::frmPantalla() : Ventana(QStringLiteral("frmPantalla"))
{
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    auto* const marco = new QFrame;
    marco->setObjectName(QStringLiteral("Frame1"));
    marco->setFrameShape(QFrame::StyledPanel);
    auto* const titulo = new QLabel(QStringLiteral("<h1>Miraldos</h1>"));
    QLabel* const lema = Piezas::Rotulo("Transferencia de datos topográficos", "lblCompania");
    QLabel* const sistema = Piezas::Rotulo("Windows 32 bits", "lblPlataforma");
    QLabel* const version = Piezas::Rotulo(Texto_Version(), "lblVersion");
    QLabel* const advertencia =
        Piezas::Rotulo("Advertencia: todos los derechos reservados", "lblAdvertencia");
    QLabel* const logo = Piezas::Imagen("imgLogo", 128, 128);
    Piezas::Poner_Imagen(*logo, En_Instalacion("bmp/miraldos.png"));

    auto* const dentro = new QVBoxLayout(marco);
    dentro->setContentsMargins(28, 20, 28, 16);
    dentro->addWidget(logo, 0, Qt::AlignHCenter);
    dentro->addWidget(titulo, 0, Qt::AlignHCenter);
    dentro->addWidget(lema, 0, Qt::AlignHCenter);
    dentro->addSpacing(8);
    dentro->addWidget(sistema, 0, Qt::AlignRight);
    dentro->addWidget(version, 0, Qt::AlignRight);
    dentro->addSpacing(12);
    dentro->addWidget(advertencia);
    auto* const caja = new QVBoxLayout(this);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->addWidget(marco);
    setMinimumWidth(420);
    adjustSize();
    move(QGuiApplication::primaryScreen()->geometry().center() - rect().center());
}

void frmPantalla::mousePressEvent(QMouseEvent*)
{
    Descargar();
}

void frmPantalla::keyPressEvent(QKeyEvent*)
{
    Descargar();
}
