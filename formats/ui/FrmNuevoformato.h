#pragma once

#include "core/ui/Ventana.h"
#include "formats/Formato_Nuevo.h"

class Panel_Campos;
class QCheckBox;
class QComboBox;
class QLineEdit;

/// A new format, from the maintenance or for a session.
class FrmNuevoformato : public Ventana {
    Q_OBJECT
public:
    FrmNuevoformato();

    /// Shows the model modally; it outlives the call.
    void Mostrar_Con(Formato_Nuevo& modelo);

private:
    void Hacer();
    void Mostrar_Datos();
    void BtnAceptar_Click();

    Formato_Nuevo* modelo = nullptr;
    QComboBox *Txt, *CbTipo;
    QLineEdit* TxtDes;
    Panel_Campos* panel;
    QCheckBox *Check1, *Check2;
};
