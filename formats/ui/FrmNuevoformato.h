#pragma once

#include "formats/Formato_Nuevo.h"
#include "formats/ui/Dialogo_Formato.h"

class QComboBox;

/// A new format, from the maintenance or for a session.
class FrmNuevoformato : public Dialogo_Formato {
    Q_OBJECT
public:
    FrmNuevoformato();

    /// Shows the model modally; it outlives the call.
    void Mostrar_Con(Formato_Nuevo& modelo);

private:
    Formato_Nuevo* Nuevo() const { return static_cast<Formato_Nuevo*>(Modelo()); }
    void Atender();
    void Mostrar_Datos() override;
    void Al_Rechazar() override;

    QComboBox *Txt, *CbTipo;
    QCheckBox *Check1, *Check2;
};
