#include "codes/ui/Dialogo_Ficha.h"

#include "core/ui/Piezas.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int ANCHO_CAJA = 280;
}

Dialogo_Ficha::Dialogo_Ficha(const Nombres& nombres) : Ventana(nombres.dialogo)
{
    setWindowTitle(nombres.titulo);
    codigo = Piezas::Caja(nombres.caja_codigo);
    descripcion = Piezas::Caja(nombres.caja_descripcion);
    descripcion->setMinimumWidth(ANCHO_CAJA);
    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    auto* const datos = new QFormLayout;
    datos->addRow(nombres.rotulo_codigo, codigo);
    datos->addRow(nombres.rotulo_descripcion, descripcion);
    auto* const caja = new QVBoxLayout(this);
    caja->addLayout(datos);
    caja->addLayout(Piezas::Fila_De_Botones({BtnAce, BtnCan}));
    Poner_Botones(BtnAce, BtnCan);
    connect(BtnAce, &QPushButton::clicked, this, &Dialogo_Ficha::BtnAce_Click);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
}

void Dialogo_Ficha::Mostrar_Con(Ficha_Libreria& ficha)
{
    const QPointer<Dialogo_Ficha> viva(this);
    modelo = &ficha;
    setWindowTitle(ficha.titulo);
    codigo->setMaxLength(ficha.Serie_Suya().ancho_codigo);
    descripcion->setMaxLength(ficha.Serie_Suya().ancho_descripcion);
    codigo->setText(ficha.codigo);
    descripcion->setText(ficha.descripcion);
    codigo->setEnabled(ficha.nueva);
    QLineEdit* const primera = ficha.nueva ? codigo : descripcion;
    primera->setFocus();
    primera->selectAll();
    Mostrar_Modal();
    if (viva && modelo == &ficha) modelo = nullptr;
}

void Dialogo_Ficha::BtnAce_Click()
{
    if (!modelo) return;
    modelo->codigo = codigo->text();
    modelo->descripcion = descripcion->text();
    if (modelo->Aceptar())
        Descargar();
    else
        (modelo->codigo.isEmpty() || !modelo->descripcion.isEmpty() ? codigo : descripcion)
            ->setFocus();
}
