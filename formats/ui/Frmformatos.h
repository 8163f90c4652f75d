#pragma once

#include "formats/Mantenimiento_Formatos.h"
#include "formats/ui/Dialogo_Formato.h"

class QComboBox;
class QLabel;

/// Maintenance of the stored formats of the family in force.
class Frmformatos : public Dialogo_Formato {
    Q_OBJECT
public:
    Frmformatos();

protected:
    void Al_Descargar() override;

private:
    void Hacer();
    void Mostrar_Datos() override;
    void DBCombo1_Click();

    Mantenimiento_Formatos modelo;
    QComboBox* DBCombo1;
    QCheckBox* ChkCab;
    QLabel *LblTip, *Label5;
};
