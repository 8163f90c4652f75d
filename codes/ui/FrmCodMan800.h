#pragma once

#include "codes/Ficha_Codigo.h"
#include "core/ui/Ventana.h"

class QComboBox;
class QLineEdit;

/// One code of a library of series B.
class FrmCodMan800 : public Ventana {
    Q_OBJECT
public:
    FrmCodMan800();

    /// Shows a code modally and returns when the dialog has closed.
    void Mostrar_Con(Ficha_Codigo& ficha);

private:
    void BtnAce_Click();

    Ficha_Codigo* modelo = nullptr;
    QLineEdit *txtCodigo, *txtCapa;
    QComboBox* cmbEntidad;
};
