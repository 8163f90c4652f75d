#pragma once

#include "core/ui/Ventana.h"

class QComboBox;

/// Choice of a field separator.
class FrmSelSep : public Ventana {
    Q_OBJECT
public:
    FrmSelSep();

    /// The chosen character; empty when cancelled.
    QString Separador;

private:
    void BtnAce_Click();

    QComboBox* Combo1;
};

/// Asks for the separator; empty when cancelled.
QString Pedir_Separador();
