#pragma once

#include "formats/Formato_Existente_Nivel.h"
#include "formats/ui/FrmExistformato.h"

/// Choice of a stored level format for one session, with what its report shows beside the fields.
class FrmExistFormNV400 : public FrmExistformato {
    Q_OBJECT
public:
    FrmExistFormNV400();

private:
    Formato_Existente_Nivel* Del_Nivel() const
    {
        return static_cast<Formato_Existente_Nivel*>(Modelo());
    }
    void Mostrar_Datos() override;

    QComboBox* CbEstructura;
    QLabel* LblEstilo;
    QCheckBox *ChkAnillo, *ChkNivelacion;
};
