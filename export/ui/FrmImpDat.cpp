#include "export/ui/FrmImpDat.h"

#include "core/Interfaz.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

FrmImpDat::FrmImpDat()
    : Ventana(QStringLiteral("FrmImpDat")), TxtTrabajo(Piezas::Caja("TxtTrabajo")),
      TxtNombre(Piezas::Caja("TxtNombre"))
{
    setWindowTitle(QStringLiteral("Datos del trabajo"));
    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    auto* const caja = new QFormLayout(this);
    caja->addRow("Trabajo:", TxtTrabajo);
    caja->addRow("Nombre:", TxtNombre);
    caja->addRow(Piezas::Fila_De_Botones({BtnAce, BtnCan}));
    setMinimumWidth(380);
    Poner_Botones(BtnAce, BtnCan);
    connect(BtnAce, &QPushButton::clicked, this, &FrmImpDat::BtnAce_Click);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Ocultar);
}

void FrmImpDat::BtnAce_Click()
{
    if (TxtTrabajo->text().trimmed().isEmpty()) {
        Interfaz_Actual().Mensaje("Debe introducir el Trabajo", Icono::Exclamacion);
        TxtTrabajo->setFocus();
        return;
    }
    aceptado = true;
    Ocultar();
}

std::optional<Datos_Trabajo> FrmImpDat::Pedir(const Datos_Trabajo& antes)
{
    aceptado = false;
    TxtTrabajo->setText(antes.trabajo);
    TxtNombre->setText(antes.nombre);
    TxtTrabajo->setFocus();
    const QPointer<FrmImpDat> aqui(this);
    Mostrar_Modal();
    if (!aqui || !aceptado) return std::nullopt;
    return Datos_Trabajo{TxtTrabajo->text(), TxtNombre->text()};
}

std::optional<Datos_Trabajo> Pedir_Trabajo(const Datos_Trabajo& antes)
{
    return Dialogos::Unico<FrmImpDat>().Pedir(antes);
}
