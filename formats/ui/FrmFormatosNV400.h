#pragma once

#include "formats/Mantenimiento_Nivel.h"
#include "formats/ui/Frmformatos.h"

/// Maintenance of the level's stored formats. It closes when a model of another family is chosen.
class FrmFormatosNV400 : public Frmformatos {
    Q_OBJECT
public:
    FrmFormatosNV400();

private:
    Mantenimiento_Nivel& Del_Nivel() { return static_cast<Mantenimiento_Nivel&>(Modelo_En_Uso()); }
    void Mostrar_Datos() override;
    void Al_Cambiar_Modelo() override;

    QComboBox* CbEstructura;
};
