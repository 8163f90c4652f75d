#pragma once

#include "core/ui/Ventana.h"
#include "formats/Formato_Existente.h"

class Panel_Campos;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

/// Choice of a stored format for one session. What the user changes in the lists holds for this
/// export only.
class FrmExistformato : public Ventana {
    Q_OBJECT
public:
    FrmExistformato();

    /// Shows the model modally; it outlives the call.
    void Mostrar_Con(Formato_Existente& modelo);

private:
    void Hacer();
    void Mostrar_Formato();
    void CbFormatos_Click(int indice);
    void BtnAceptar_Click();

    Formato_Existente* modelo = nullptr;
    QComboBox* CbFormatos;
    QLineEdit* TxtDes;
    Panel_Campos* panel;
    QCheckBox *Check1, *Check2;
    QLabel* Label2;
};
