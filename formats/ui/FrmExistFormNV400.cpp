#include "formats/ui/FrmExistFormNV400.h"

#include "core/ui/Piezas.h"
#include "formats/ui/Estructura_Nivel.h"
#include "formats/ui/Panel_Campos.h"

#include <QCheckBox>
#include <QLabel>

FrmExistFormNV400::FrmExistFormNV400()
    : FrmExistformato("FrmExistFormNV400", "Formatos Nivel Digital")
{
    CbEstructura = Hacer_Estructura([this](Mitad_Nivel mitad) {
        if (!Del_Nivel()) return;
        Del_Nivel()->Elegir_Mitad(mitad);
        Mostrar_Datos();
    });
    LblEstilo = Piezas::Rotulo({}, "LblEstilo");
    ChkAnillo = Piezas::Casilla("ChkAnillo", "Leer Anillo");
    ChkNivelacion = Piezas::Casilla("ChkNivelacion", "Fin de Nivelación");
    connect(ChkAnillo, &QCheckBox::toggled, this, [this](bool si) {
        if (Del_Nivel()) Del_Nivel()->casillas.anillo = si;
    });
    connect(ChkNivelacion, &QCheckBox::toggled, this, [this](bool si) {
        if (Del_Nivel()) Del_Nivel()->casillas.nivelacion = si;
    });
    panel->Rotular([this](const QString& campo) {
        return Del_Nivel() ? Del_Nivel()->mitades.Rotulo(campo) : campo;
    });
    Montar({{"Estilo de Fichero", LblEstilo}, {"Estructura :", CbEstructura}},
           {ChkAnillo, ChkNivelacion});
}

void FrmExistFormNV400::Mostrar_Datos()
{
    const Formato_Existente_Nivel& modelo = *Del_Nivel();
    LblEstilo->setText(modelo.estilo);
    CbEstructura->setCurrentIndex(int(modelo.mitades.en_vista));
    ChkAnillo->setChecked(modelo.casillas.anillo);
    ChkNivelacion->setChecked(modelo.casillas.nivelacion);
    FrmExistformato::Mostrar_Datos();
}
