#include "core/ui/FrmAyuda.h"

#include "core/Configuracion.h"
#include "core/ui/Piezas.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

FrmAyuda::FrmAyuda() : Ventana(QStringLiteral("FrmAyuda"))
{
    setWindowTitle(QStringLiteral("Ayuda"));
    Label1 = Piezas::Rotulo({}, "Label1");
    Label1->setWordWrap(true);
    Label1->setMinimumHeight(Label1->fontMetrics().lineSpacing() * 3);
    Label1->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Picture1 = Piezas::Imagen("Picture1", 400, 260);
    Picture1->setFrameShape(QFrame::StyledPanel);
    Check1 = Piezas::Casilla("Check1", "No volver a mostrar la proxima vez");
    BtnAtras = Piezas::Boton("BtnAtras", "&Atras");
    BtnSiguiente = Piezas::Boton("BtnSiguiente", "&Siguiente");

    auto* const abajo = new QHBoxLayout;
    abajo->addWidget(Check1, 1);
    abajo->addWidget(BtnAtras);
    abajo->addWidget(BtnSiguiente);
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(Picture1, 1);
    caja->addWidget(Label1);
    caja->addLayout(abajo);
    Piezas::Orden({BtnSiguiente, BtnAtras, Check1});
    Poner_Botones(BtnSiguiente, nullptr);
    connect(BtnAtras, &QPushButton::clicked, this, [this] {
        --Paso_Ayuda;
        Mostrar_Paso();
    });
    connect(BtnSiguiente, &QPushButton::clicked, this, [this] {
        ++Paso_Ayuda;
        Mostrar_Paso();
    });
    connect(Check1, &QCheckBox::clicked, this, &FrmAyuda::Check1_Click);
}

void FrmAyuda::Cargar(const QString& tipo_ope, const QString& ope)
{
    pasos = Abrir_Pasos(tipo_ope, ope);
    if (pasos.isEmpty()) {
        Descargar();
        return;
    }
    Mostrar_Paso();
    if (!Descargada()) Mostrar_Modal();
}

void FrmAyuda::Mostrar_Paso()
{
    const Vista_Paso vista = Ver_Paso(pasos, Paso_Ayuda);
    BtnAtras->setEnabled(vista.atras);
    if (vista.fin) {
        Descargar();
        return;
    }
    Label1->setText(vista.texto);
    Piezas::Poner_Imagen(*Picture1, vista.foto);
}

void FrmAyuda::Check1_Click(bool marcada)
{
    Guardar_Aviso("Visible", !marcada, "No");
}
