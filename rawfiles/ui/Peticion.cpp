#include "rawfiles/ui/Peticion.h"

#include "core/ui/Piezas.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

Peticion::Peticion() : Ventana(QStringLiteral("Peticion"))
{
    setWindowTitle(QStringLiteral("Conversión IGN"));
    constexpr const char16_t* ROTULOS[] = {u"Número Serie", u"Nombre Mira 1", u"Nombre Mira 2",
                                           u"Operador", u"Empresa"};
    auto* const caja = new QVBoxLayout(this);
    auto* const filas = new QFormLayout;
    for (std::size_t i = 0; i < cajas.size(); ++i) {
        cajas[i] = Piezas::Caja(QStringLiteral("dato%1").arg(i + 1));
        filas->addRow(QString::fromUtf16(ROTULOS[i]), cajas[i]);
    }
    QPushButton* const Aceptar =
        Piezas::Boton(QStringLiteral("Aceptar"), QStringLiteral("&Aceptar"));
    caja->addLayout(filas);
    caja->addLayout(Piezas::Fila_De_Botones({Aceptar}));
    setMinimumWidth(360);
    Poner_Botones(Aceptar, nullptr);
    connect(Aceptar, &QPushButton::clicked, this, &Peticion::Aceptar_Click);
}

void Peticion::Aceptar_Click()
{
    QString* const datos[] = {&Dato1, &Dato2, &Dato3, &Dato4, &Dato5};
    for (std::size_t i = 0; i < cajas.size(); ++i)
        *datos[i] = cajas[i]->text();
    Aceptada = true;
    Ocultar();
}
