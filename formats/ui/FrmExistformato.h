#pragma once

#include "formats/Formato_Existente.h"
#include "formats/ui/Dialogo_Formato.h"

class QComboBox;
class QLabel;

/// Choice of a stored format for one session. What the user changes in the lists holds for this
/// export only.
class FrmExistformato : public Dialogo_Formato {
    Q_OBJECT
public:
    FrmExistformato();

    /// Shows the model modally; it outlives the call.
    void Mostrar_Con(Formato_Existente& modelo);

protected:
    /// Makes the controls; `Montar` lays them out.
    FrmExistformato(const QString& nombre, const QString& titulo);
    /// @param renglones, casillas  what a dialog has beside those of this one
    void Montar(const QList<Renglon>& renglones = {}, const QList<QWidget*>& casillas = {});
    void Mostrar_Datos() override;

private:
    Formato_Existente* Existente() const { return static_cast<Formato_Existente*>(Modelo()); }
    void CbFormatos_Click(int indice);

    QComboBox* CbFormatos;
    QCheckBox *Check1, *Check2;
    QLabel* Label2;
};
