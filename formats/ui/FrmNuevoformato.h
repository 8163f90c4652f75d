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

protected:
    /// Makes the controls; `Montar` lays them out.
    explicit FrmNuevoformato(const QString& nombre);
    /// @param renglones  what a dialog has beside those of this one
    void Montar(const QList<Renglon>& renglones = {});
    void Mostrar_Datos() override;

private:
    Formato_Nuevo* Nuevo() const { return static_cast<Formato_Nuevo*>(Modelo()); }
    void Atender();
    void Al_Rechazar() override;

    QComboBox *Txt, *CbTipo;
    QCheckBox *Check1, *Check2;
};
