#pragma once

#include "formats/Formatos_Nivel.h"
#include "formats/Mantenimiento_Formatos.h"

/// What `FrmFormatosNV400` holds: the maintenance of the level's formats. A half is stored when the
/// user turns to the other one.
class Mantenimiento_Nivel : public Mantenimiento_Formatos {
public:
    Dos_Mitades mitades; ///< `CbEstructura`

    /// `CbEstructura` click.
    void Elegir_Mitad(Mitad_Nivel mitad);
    void Nuevo() override;

protected:
    void Leer_Campos(const Formato& formato) override;
    bool Cambiar(const Formato& formato) override;
};
