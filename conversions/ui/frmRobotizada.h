#pragma once

#include "conversions/biblioteca/Flujo_Monitorizar.h"
#include "core/ui/Ventana.h"

class QLineEdit;
class QRadioButton;

/// Results of a robotic monitoring campaign, as a text or a workbook.
class frmRobotizada : public Ventana {
    Q_OBJECT
public:
    frmRobotizada();

    /// Asks for the source files and shows the dialog; cancelling closes it.
    void Abrir();

private:
    void BtnAce_Click();

    Flujo_Monitorizar flujo;
    QList<std::pair<QLineEdit*, QString Monitorizacion::Textos::*>> cajas;
    QRadioButton* Excel;
};
