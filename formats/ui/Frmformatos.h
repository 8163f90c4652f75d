#pragma once

#include "core/ui/Ventana.h"
#include "formats/Mantenimiento_Formatos.h"

class Panel_Campos;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

/// Maintenance of the stored formats of the family in force.
class Frmformatos : public Ventana {
    Q_OBJECT
public:
    Frmformatos();

protected:
    void Al_Descargar() override;

private:
    void Hacer();
    void Mostrar_Todo();
    void DBCombo1_Click();

    Mantenimiento_Formatos modelo;
    QComboBox* DBCombo1;
    QLineEdit* TxtDes;
    QCheckBox* ChkCab;
    QLabel *LblTip, *Label5;
    Panel_Campos* panel;
};
