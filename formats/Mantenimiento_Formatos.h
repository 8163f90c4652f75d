#pragma once

#include "formats/Modelo_Formato.h"

/// What `Frmformatos` holds: the maintenance of the stored formats of the family in force.
class Mantenimiento_Formatos : public Contenido_Formato {
public:
    Mantenimiento_Formatos();
    virtual ~Mantenimiento_Formatos() = default;

    QString nombre;         ///< text of `DBCombo1`
    QString tipo;           ///< `LblTip`
    QString es_modificable; ///< `Label5`: "Si", "No", empty without a format
    /// `BtnAgregar`, `BtnQuitar`, `ChkCab`, `Command1` and `Command2` are disabled.
    bool bloqueado = false;

    /// Load: the family's formats, and the one that stood there when the dialog was last closed.
    void Cargar();
    /// The user picks or types a name.
    void Elegir(const QString& elegido);
    /// `Data1.Refresh` and `Actualizar_Combo`: the list anew, the current format chosen again.
    void Actualizar_Combo();

    void Guardar();  ///< `BtnGuardar`
    void Eliminar(); ///< `BtnEliminar`; a locked format can be deleted
    /// `BtnNuevo`: shows the dialog of a new format and chooses what it made.
    virtual void Nuevo();
    /// Close: keeps the name for the next time.
    void Cerrar() const;

protected:
    const QString& Maquina() const { return maquina; }
    /// Fills the lists with the fields of the format and those on offer beside them.
    virtual void Leer_Campos(const Formato& formato);
    /// Stores what was changed. @return false when the format has vanished
    virtual bool Cambiar(const Formato& formato);
    /// @param guardado  name of the format that was made; empty for none
    void Elegir_El_Nuevo(const QString& guardado);

private:
    void Limpiar();
    void Leer_Formato();

    QString maquina;
    int ope = 0;
};
