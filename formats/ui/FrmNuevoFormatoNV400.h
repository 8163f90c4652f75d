#pragma once

#include "formats/Formato_Nuevo_Nivel.h"
#include "formats/ui/FrmNuevoformato.h"

/// A new format of the level, from the maintenance or for a session.
class FrmNuevoFormatoNV400 : public FrmNuevoformato {
    Q_OBJECT
public:
    FrmNuevoFormatoNV400();

private:
    Formato_Nuevo_Nivel* Del_Nivel() const { return static_cast<Formato_Nuevo_Nivel*>(Modelo()); }
    void Mostrar_Datos() override;

    QComboBox* CbEstructura;
};
