#pragma once

#include "core/ui/Ventana.h"

class QButtonGroup;
class QRadioButton;

/// What is to be converted, to the instrument's form or to LandXML.
class frmConvEst : public Ventana {
    Q_OBJECT
public:
    frmConvEst();

    /// @param nuevo  0: to the instrument's form; 1: to LandXML, which has no points
    void Poner_Modo(int nuevo);

protected:
    void Al_Activarse() override;

private:
    void BtnAce_Click();
    void Activar_Puntos();

    int modo = 0;
    QButtonGroup* tipo;
    QRadioButton* alHor;
    QRadioButton* puntos;
};
