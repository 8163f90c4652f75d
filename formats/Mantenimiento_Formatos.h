#pragma once

#include "formats/Modelo_Formato.h"

/// What `Frmformatos` holds: the maintenance of the stored formats of the family in force.
class Mantenimiento_Formatos : public Contenido_Formato {
public:
    Mantenimiento_Formatos();

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
    void Nuevo();    ///< `BtnNuevo`: shows `FrmNuevoformato` and chooses what it made
    /// Close: keeps the name for the next time.
    void Cerrar() const;

private:
    void Limpiar();
    void Leer_Formato();

    QString maquina;
    int ope = 0;
};
