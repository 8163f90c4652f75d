#pragma once

#include "rawfiles/Exportar_En_Bruto.h"

#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QPushButton;

/// What the two dialogs of the plain raw export hold.
class Panel_Bruto : public QWidget {
    Q_OBJECT
public:
    /// @param ocultar  hides the dialog around it
    Panel_Bruto(const Dialogo_Bruto& dialogo, std::function<void()> ocultar);

    void Cargar(const Sesion_Elegida& nueva);

    QPushButton *BtnAce, *BtnCan;

private:
    void BtnAce_Click();

    const Dialogo_Bruto& dialogo;
    std::function<void()> ocultar;
    Sesion_Elegida sesion;
    QButtonGroup* OptFor;
    QCheckBox* ChkGenerales;
};
