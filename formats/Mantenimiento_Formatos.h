#pragma once

#include "formats/ModFormatos.h"

/// What `Frmformatos` holds: the maintenance of the stored formats of the family in force. The
/// dialog shows the public members after each call and hands the user's changes of `descripcion`,
/// `cabeceras` and `listas` straight into them.
class Mantenimiento_Formatos {
public:
    Mantenimiento_Formatos();

    QStringList nombres;    ///< `DBCombo1`
    QString nombre;         ///< its text
    QString descripcion;    ///< `TxtDes`
    bool cabeceras = false; ///< `ChkCab`
    QString tipo;           ///< `LblTip`
    QString es_modificable; ///< `Label5`: "Si", "No", empty without a format
    Dos_Listas listas;      ///< `List1`, `List2`
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
