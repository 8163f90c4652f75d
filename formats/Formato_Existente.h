#pragma once

#include "formats/ModFormatos.h"
#include "formats/Peticiones_Formatos.h"

#include <functional>

/// What `FrmExistformato` holds: the choice of a stored format for one session. The dialog shows
/// the public members after each call and hands the user's changes of `listas` and `cabeceras`
/// straight into them; they are for this export only.
class Formato_Existente {
public:
    /// @param destino  "E" export, "I" print
    Formato_Existente(const Sesion_Elegida& sesion, const QString& destino);

    QString titulo;
    QStringList nombres;         ///< `CbFormatos`
    int indice = -1;             ///< its current entry
    QString descripcion;         ///< `TxtDes`
    Dos_Listas listas;           ///< `List1`, `List2`
    bool cabeceras = false;      ///< `Check1`
    bool check2_visible = true;  ///< `Check2`, which is then checked
    bool label2_visible = false; ///< `Label2`, red
    QString label2 = "Modificable";
    /// `BtnAgregar`, `BtnQuitar`, `Check1`, `Btnsubir` and `BtnBajar` are disabled.
    bool bloqueado = false;

    /// Fills the list of formats. @return false when there is none: the box has been shown and the
    /// dialog isn't
    bool Ver();
    /// The user picks an entry of `CbFormatos`.
    void Elegir(int entrada);
    /// `BtnAceptar`: hands the fields on, may ask for offsets, and opens the output.
    /// @param ocultar  hides the dialog; called before the next one opens
    /// @return true when the dialog is to be unloaded
    bool Aceptar(const std::function<void()>& ocultar);

    const Sesion_Elegida& Sesion() const { return sesion; }

private:
    void Leer_Formato(const QString& nombre);

    Sesion_Elegida sesion;
    QString destino;
};

/// Puts the fields in force for the export, asks for the offsets when the settings and a coordinate
/// among the fields want it, and tells how it went. Every export begins without offsets.
/// @return false when the user cancelled
/// @throws Error_Ejecucion 9 for more fields than `Campos_Exportar` holds
bool Preparar_Exportacion(const QString& maquina, const QStringList& campos, bool cabeceras);

/// The browser's buttons on the session of its current row: beep without one, box without lines,
/// the format dialog of the family otherwise.
/// @param destino  "E" export, "I" print
void Exporta_o_Imprime_Formato_Existente(const std::optional<Sesion_Elegida>& sesion,
                                         const QString& destino);
void Exporta_Formato_Nuevo(const std::optional<Sesion_Elegida>& sesion);
