#include "conversions/ui/frmConvEst.h"

#include "conversions/biblioteca/Flujo_Conversion.h"
#include "conversions/biblioteca/Flujo_Diseno.h"
#include "core/ui/Piezas.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

frmConvEst::frmConvEst() : Ventana(QStringLiteral("frmConvEst")), tipo(new QButtonGroup(this))
{
    QGroupBox* const Frame1 = Piezas::Grupo("Tipo", "Frame1");
    auto* const opciones = new QVBoxLayout(Frame1);
    const auto opcion = [&](const QString& nombre, const QString& texto, Clase_Conversion clase) {
        auto* const boton = new QRadioButton(texto);
        boton->setObjectName(nombre);
        tipo->addButton(boton, int(clase));
        opciones->addWidget(boton);
        return boton;
    };
    alHor = opcion("alHor", "Alineaciones  Horizontales", Clase_Conversion::Alineaciones);
    opcion("alVer", "Alineaciones Verticales", Clase_Conversion::Rasantes);
    opcion("transver", "Perfiles Transversales", Clase_Conversion::Transversales);
    puntos = opcion("puntos", "Puntos", Clase_Conversion::Puntos);
    alHor->setChecked(true);

    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    auto* const botones = Piezas::Fila_De_Botones({BtnAce, BtnCan});
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(Frame1);
    caja->addLayout(botones);
    setMinimumWidth(300);
    Poner_Botones(BtnAce, BtnCan);
    connect(BtnAce, &QPushButton::clicked, this, &frmConvEst::BtnAce_Click);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
    Poner_Modo(0);
}

void frmConvEst::Poner_Modo(int nuevo)
{
    modo = nuevo;
    setWindowTitle(modo == 1 ? QStringLiteral("Conversión a formato LandXML")
                             : QStringLiteral("Conversión a formato Estandar Survey"));
    Activar_Puntos();
}

void frmConvEst::Al_Activarse()
{
    Activar_Puntos();
}

void frmConvEst::Activar_Puntos()
{
    puntos->setEnabled(modo != 1);
    if (modo == 1 && puntos->isChecked()) alHor->setChecked(true);
}

void frmConvEst::BtnAce_Click()
{
    const auto clase = Clase_Conversion(tipo->checkedId());
    // The flow lets the user at the other windows: this one may be gone when it ends.
    const QPointer<frmConvEst> aqui(this);
    const auto cerrar = qScopeGuard([&] {
        if (aqui) aqui->Descargar();
    });
    if (modo == 1)
        Convertir_A_LandXML(clase);
    else
        Convertir_A_Estandar(clase);
}
