#pragma once

#include "formats/Formato_Nuevo.h"
#include "formats/Formatos_Nivel.h"

/// What `FrmNuevoFormatoNV400` holds: a new format of the level. Both halves are stored at once,
/// when it is accepted.
class Formato_Nuevo_Nivel : public Formato_Nuevo {
public:
    using Formato_Nuevo::Formato_Nuevo;

    Dos_Mitades mitades; ///< `CbEstructura`

    /// `CbEstructura` click.
    void Elegir_Mitad(Mitad_Nivel mitad) { mitades.Mostrar(mitad, listas); }

protected:
    void Llenar_Listas() override;
    bool Hay_Campos() const override;
    void Almacenar(const Formato& formato, bool nuevo) override;
};
