#include "session/ui/FrmEditar.h"

#include "core/Ayuda.h"
#include "core/ui/Piezas.h"
#include "session/ui/Rejilla.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

FrmEditar::FrmEditar() : Ventana(QStringLiteral("FrmEditar")), MSF(Hacer_Rejilla("MSF"))
{
    setWindowTitle(QStringLiteral("Datos del registro"));
    LblPunto = Piezas::Rotulo({}, "LblPunto");
    QFont negrita = LblPunto->font();
    negrita.setBold(true);
    LblPunto->setFont(negrita);
    BtnRetrasar = Piezas::Boton_Dibujo(
        "BtnRetrasar", "retrasar.png", "<",
        "Retrocede al anterrior registro de datos (Utilize - desde el teclado)");
    BtnAvanzar =
        Piezas::Boton_Dibujo("BtnAvanzar", "avanzar.png", ">",
                             "Avanza al siguiente registro de datos (Utilize + desde el teclado)");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cerrar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    auto* const arriba = new QHBoxLayout;
    arriba->addWidget(Piezas::Rotulo("Punto:"));
    arriba->addWidget(LblPunto, 1);
    arriba->addWidget(BtnRetrasar);
    arriba->addWidget(BtnAvanzar);
    auto* const abajo = new QHBoxLayout;
    abajo->addStretch();
    abajo->addWidget(BtnCan);
    abajo->addWidget(btnAyuda);
    auto* const caja = new QVBoxLayout(this);
    caja->addLayout(arriba);
    caja->addWidget(MSF, 1);
    caja->addLayout(abajo);
    resize(430, 460);
    Poner_Botones(BtnCan, BtnCan);
    // The grid would take the signs for the search of a row.
    MSF->installEventFilter(this);
    connect(BtnAvanzar, &QPushButton::clicked, this, [this] { mover_datos(1); });
    connect(BtnRetrasar, &QPushButton::clicked, this, [this] { mover_datos(-1); });
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Ocultar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("vdatos"); });
}

void FrmEditar::Ver(const Vista_Registro& vista, std::function<void(int)> mover)
{
    mover_datos = std::move(mover);
    LblPunto->setText(vista.punto);
    Poner_Lineas(*MSF, "Descripción", "Valor", Llenar_Rejilla(vista.nombres, vista.valores));
    BtnAvanzar->setEnabled(vista.con_botones);
    BtnRetrasar->setEnabled(vista.con_botones);
    Mostrar_Modal();
}

bool FrmEditar::Tecla(int tecla)
{
    if (tecla != Qt::Key_Plus && tecla != Qt::Key_Minus) return false;
    (tecla == Qt::Key_Plus ? BtnAvanzar : BtnRetrasar)->click();
    return true;
}

void FrmEditar::keyPressEvent(QKeyEvent* evento)
{
    if (!Tecla(evento->key())) Ventana::keyPressEvent(evento);
}

bool FrmEditar::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() == QEvent::KeyPress && Tecla(static_cast<QKeyEvent*>(evento)->key()))
        return true;
    return Ventana::eventFilter(objeto, evento);
}
