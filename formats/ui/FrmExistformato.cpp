#include "formats/ui/FrmExistformato.h"

#include "core/ui/Piezas.h"
#include "formats/ui/Panel_Campos.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

FrmExistformato::FrmExistformato() : FrmExistformato("FrmExistformato", "Formatos")
{
    Montar();
}

FrmExistformato::FrmExistformato(const QString& nombre, const QString& titulo)
    : Dialogo_Formato(nombre, titulo)
{
    CbFormatos = Piezas::Combo("CbFormatos");
    TxtDes->setReadOnly(true);
    Check1 = Hacer_Cabeceras();
    Check2 = Piezas::Casilla("Check2", " Modificable");
    Check2->setEnabled(false); // it tells, and changes nothing here
    Label2 = Piezas::Rotulo("Modificable", "Label2");
    Label2->setStyleSheet("color: #ff0000");
    connect(CbFormatos, &QComboBox::activated, this, &FrmExistformato::CbFormatos_Click);
}

void FrmExistformato::Montar(const QList<Renglon>& renglones, const QList<QWidget*>& casillas)
{
    Armar(QList<Renglon>{{"Nombre del formato:", CbFormatos}, {"Descripción:", TxtDes}} + renglones,
          QList<QWidget*>{Check1, Check2, Label2} + casillas, "expexist");
}

void FrmExistformato::Mostrar_Con(Formato_Existente& modelo)
{
    Soltar_Modelo();
    CbFormatos->clear();
    CbFormatos->addItems(modelo.nombres);
    CbFormatos->setCurrentIndex(modelo.indice);
    Mostrar_Modelo(modelo, *CbFormatos);
}

void FrmExistformato::Mostrar_Datos()
{
    const Formato_Existente& modelo = *Existente();
    TxtDes->setText(modelo.descripcion);
    panel->Mostrar();
    panel->Bloquear(modelo.bloqueado);
    Check1->setEnabled(!modelo.bloqueado);
    Check1->setChecked(modelo.cabeceras);
    Check2->setVisible(modelo.check2_visible);
    Check2->setChecked(modelo.check2_visible && modelo.indice >= 0);
    Label2->setText(modelo.label2);
    Label2->setVisible(modelo.label2_visible);
}

void FrmExistformato::CbFormatos_Click(int indice)
{
    if (!Existente()) return;
    Existente()->Elegir(indice);
    Mostrar_Datos();
}
