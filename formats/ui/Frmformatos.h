#pragma once

#include "formats/Mantenimiento_Formatos.h"
#include "formats/ui/Dialogo_Formato.h"

#include <memory>

class QComboBox;
class QLabel;

/// Maintenance of the stored formats of the family in force.
class Frmformatos : public Dialogo_Formato {
    Q_OBJECT
public:
    Frmformatos();

protected:
    /// Makes the controls; `Montar` lays them out.
    /// @param seccion  of the position file
    Frmformatos(const QString& nombre, const QString& titulo, const QString& seccion,
                std::unique_ptr<Mantenimiento_Formatos> modelo);
    /// Lays the controls out and shows the formats of the family.
    /// @param renglones  what a dialog has beside those of this one
    void Montar(const QList<Renglon>& renglones = {});
    Mantenimiento_Formatos& Modelo_En_Uso() { return *modelo; }
    void Mostrar_Datos() override;
    /// Another model of the instrument has formats of its own.
    virtual void Al_Cambiar_Modelo();
    void Al_Descargar() override;

private:
    QLayout* Hacer_Botones();
    void DBCombo1_Click();

    std::unique_ptr<Mantenimiento_Formatos> modelo;
    QComboBox* DBCombo1;
    QCheckBox* ChkCab;
    QLabel *LblTip, *Label5;
};
