#include "transfer/ui/FrmRecuerde.h"

#include "core/Configuracion.h"
#include "core/ui/Piezas.h"
#include "transfer/Despacho.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

FrmRecuerde::FrmRecuerde() : Ventana(QStringLiteral("FrmRecuerde"))
{
    setWindowTitle(QStringLiteral("Recuerde"));
    const Texto_Recordatorio texto = Leer_Recordatorio();
    QLabel* const frase = Piezas::Rotulo(texto.frase, "Label1");
    frase->setWordWrap(true);
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(frase);
    for (int i = 0; i < int(std::size(texto.datos)); ++i) {
        QLabel* const dato = Piezas::Rotulo(texto.datos[i], "LblDat");
        dato->setProperty("Index", i);
        dato->setIndent(24);
        caja->addWidget(dato);
    }
    QCheckBox* const Check1 = Piezas::Casilla("Check1", "No volver a mostrar la proxima vez");
    QPushButton* const BtnCont = Piezas::Boton("BtnCont", "&Continuar");
    auto* const abajo = new QHBoxLayout;
    abajo->addWidget(Check1, 1);
    abajo->addWidget(BtnCont);
    caja->addSpacing(8);
    caja->addLayout(abajo);
    setMinimumWidth(400);
    Poner_Botones(BtnCont, BtnCont);
    BtnCont->setFocus();
    connect(Check1, &QCheckBox::clicked, this,
            [](bool marcada) { Guardar_Aviso("Recuerde", !marcada, "NO"); });
    connect(BtnCont, &QPushButton::clicked, this, &Ventana::Descargar);
}
