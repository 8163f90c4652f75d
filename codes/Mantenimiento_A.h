#pragma once

#include "codes/Mantenimiento_Librerias.h"

/// What `FrmCodigos` holds: the libraries of series A. Codes are changed in memory until they are
/// saved; rows count from 0.
class Mantenimiento_A : public Mantenimiento_Librerias {
public:
    Mantenimiento_A();

    bool cambiado = false; ///< there are changes that were not saved

    /// `Combo1`: the descriptions, and the keys joined with code 6.
    QStringList Nombres() const;
    QString Tag() const;

    bool Soltar() override;
    void Actualizar() override;
    void Ordenar() override;

    void Anadir();   ///< `BtnADDCod`
    void Insertar(); ///< `BtnIns`: before the selected one
    void Editar_Codigo();
    void Eliminar_Codigo();
    /// A code typed straight into the grid. @return false when it isn't taken: the old one stays
    bool Poner_Codigo(int fila, const QString& texto);

    void Guardar();
    /// `BtnRecLib`: asks for the key of the new library and opens the receiving dialog.
    void Recibir();

protected:
    void Leer_Los_Codigos() override;
    bool Cambiado() const override { return cambiado; }

private:
    bool Hay_Codigo() const;
    bool Cabe_Otro() const;
    void Meter(int lugar, const QString& codigo);

    QString esperada; ///< the library that is being received
};
