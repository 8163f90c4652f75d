#include "core/ui/FrmProc.h"

#include "core/Interfaz.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The bar counts in thousandths, since the callers count in bytes and rows of any number.
constexpr int TOPE_BARRA = 1000;
// Short enough for the button to answer at once, long enough to cost a loop nothing.
constexpr qint64 MS_PASADA = 40;

} // namespace

FrmProc::FrmProc() : Ventana(QStringLiteral("FrmProc"))
{
    setWindowTitle(QStringLiteral("Procesando Fichero"));
    LblMsg = new QLabel(QStringLiteral("Procesando Datos... Por favor espere"));
    LblMsg->setObjectName(QStringLiteral("LblMsg"));
    PB1 = new QProgressBar;
    PB1->setObjectName(QStringLiteral("PB1"));
    PB1->setRange(0, TOPE_BARRA);
    BtnCan = new QPushButton(QStringLiteral("&Cancelar"));
    BtnCan->setObjectName(QStringLiteral("BtnCan"));
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(LblMsg);
    caja->addWidget(PB1);
    caja->addWidget(BtnCan, 0, Qt::AlignHCenter);
    setMinimumWidth(360);
    Poner_Botones(nullptr, BtnCan);
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setWindowModality(Qt::ApplicationModal);
    connect(BtnCan, &QPushButton::clicked, this, &FrmProc::BtnCan_Click);
}

void FrmProc::Abrir(const QString& etiqueta, qint64 maximo)
{
    Etiqueta(etiqueta, maximo);
    show();
    Colocar();
    desde_pasada.start();
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
}

void FrmProc::Etiqueta(const QString& etiqueta, qint64 maximo)
{
    LblMsg->setText(etiqueta);
    maximo_pedido = maximo;
    PB1->setValue(0);
}

void FrmProc::Avanzar(qint64 valor)
{
    if (desde_pasada.elapsed() < MS_PASADA && valor < maximo_pedido) return;
    desde_pasada.restart();
    if (maximo_pedido > 0)
        PB1->setValue(static_cast<int>(double(valor) / double(maximo_pedido) * TOPE_BARRA));
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
}

void FrmProc::Colocar()
{
    Centrar_Horizontal(*this);
}

void FrmProc::closeEvent(QCloseEvent* evento)
{
    // The loop owns the dialog: closing it by the frame asks the loop to stop, like the button.
    if (isVisible()) {
        BtnCan_Click();
        evento->ignore();
    } else {
        Ventana::closeEvent(evento);
    }
}

void FrmProc::BtnCan_Click()
{
    Proceso_Cancelado = true;
}
