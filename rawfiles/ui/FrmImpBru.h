#pragma once

#include "core/ui/Ventana.h"

class QButtonGroup;
class QComboBox;
class QLineEdit;

/// Import of a raw file as a session of the family in force.
class FrmImpBru : public Ventana {
    Q_OBJECT
public:
    FrmImpBru();

private:
    QWidget* Hacer_Formato();
    QWidget* Hacer_Datos();
    void Cargar();
    void BtnSel_Click();
    void BtnAce_Click();

    QButtonGroup* OptFor;
    QLineEdit *Text1, *Text2;
    QComboBox* CbTipo;
};
