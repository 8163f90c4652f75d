#include "conversions/ui/frmRobotizada.h"

#include "core/ui/Piezas.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

frmRobotizada::frmRobotizada() : Ventana(QStringLiteral("frmRobotizada"))
{
    setWindowTitle(QStringLiteral("Monitorizar Robotizada"));
    auto* const datos = new QFormLayout;
    using Textos = Monitorizacion::Textos;
    const auto caja = [&](const QString& nombre, const QString& rotulo, QString Textos::*texto) {
        QLineEdit* const linea = Piezas::Caja(nombre);
        datos->addRow(rotulo, linea);
        cajas.append({linea, texto});
    };
    caja("trabajo", "Trabajo", &Textos::trabajo);
    caja("descripcion", "Descripción", &Textos::descripcion);
    caja("operario", "Operario", &Textos::operario);
    caja("temperatura", "Temperatura", &Textos::temperatura);
    caja("Fecha", "Fecha", &Textos::fecha);
    caja("hora", "Hora", &Textos::hora);

    QGroupBox* const Frame1 = Piezas::Grupo("Formato de Salida", "Frame1");
    auto* const opciones = new QHBoxLayout(Frame1);
    Excel = new QRadioButton("Excel");
    Excel->setObjectName("Excel");
    auto* const ascii = new QRadioButton("ASCII");
    ascii->setObjectName("ascii");
    ascii->setChecked(true);
    opciones->addWidget(Excel);
    opciones->addWidget(ascii);
    opciones->addStretch();

    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    auto* const todo = new QVBoxLayout(this);
    todo->addLayout(datos);
    todo->addWidget(Frame1);
    todo->addLayout(Piezas::Fila_De_Botones({BtnAce, BtnCan}));
    setMinimumWidth(380);
    Poner_Botones(BtnAce, BtnCan);
    connect(BtnAce, &QPushButton::clicked, this, &frmRobotizada::BtnAce_Click);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
}

void frmRobotizada::Abrir()
{
    const QPointer<frmRobotizada> aqui(this);
    const bool elegidos = flujo.Abrir();
    if (!aqui) return;
    if (!elegidos) {
        Descargar();
        return;
    }
    for (const auto& [linea, texto] : cajas)
        linea->setText(flujo.textos.*texto);
    Mostrar();
    cajas.first().first->setFocus();
}

void frmRobotizada::BtnAce_Click()
{
    for (const auto& [linea, texto] : cajas)
        flujo.textos.*texto = linea->text();
    flujo.salida = Excel->isChecked() ? Salida_Monitorizar::Excel : Salida_Monitorizar::Ascii;
    flujo.Aceptar();
}
