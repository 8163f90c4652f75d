#pragma once

#include "formats/ModFormatos.h"

#include <functional>

/// What `FrmNuevoformato` holds: a new format, made for a session and exported at once, or made
/// from the maintenance. The dialog shows the public members after each call and hands the user's
/// changes of `descripcion`, `cabeceras`, `modificable` and `listas` straight into them.
class Formato_Nuevo {
public:
    /// @param sesion  the session that it is made for; none from the maintenance
    Formato_Nuevo(const QString& maquina, const std::optional<Sesion_Elegida>& sesion = {});

    QString titulo = "Crear formato nuevo";
    QStringList nombres;     ///< entries of `Txt`: the family's formats
    QString nombre;          ///< its text
    int indice_nombre = -1;  ///< its entry; -1: the text was typed, the format is a new one
    QString descripcion;     ///< `TxtDes`
    QStringList tipos;       ///< `CbTipo`
    QString tag_tipos;       ///< the operations that go with its entries, joined with code 6
    int tipo = -1;           ///< its entry
    Dos_Listas listas;       ///< `List1`, `List2`
    bool cabeceras = false;  ///< `Check1`
    bool modificable = true; ///< `Check2`
    QString guardado;        ///< name of the format that was stored; empty until then

    /// Fills the kinds and the lists.
    void Crear();
    /// The user picks a kind: the lists are filled anew.
    void Elegir_Tipo(int entrada);
    /// The user types a name, or picks one of the list.
    void Escribir_Nombre(const QString& texto);
    void Elegir_Nombre(int entrada);
    /// Fills the lists for the kind in force.
    void Actualizar_Datos();

    /// `BtnAceptar`: checks, stores, and for a session goes on to the export.
    /// @param ocultar  hides the dialog; called before the next one opens
    /// @return true when the dialog is to be unloaded; otherwise the focus goes to `Txt`
    bool Aceptar(const std::function<void()>& ocultar);

private:
    int Operacion() const;
    bool Guardar();

    QString maquina;
    std::optional<Sesion_Elegida> sesion;
};
