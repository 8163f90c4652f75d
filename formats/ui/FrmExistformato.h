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

private:
    Formato_Existente* Existente() const { return static_cast<Formato_Existente*>(Modelo()); }
    void Mostrar_Datos() override;
    void CbFormatos_Click(int indice);

    QComboBox* CbFormatos;
    QCheckBox *Check1, *Check2;
    QLabel* Label2;
};
