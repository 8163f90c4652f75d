#pragma once

#include "formats/Modelo_Formato.h"
#include "formats/Peticiones_Formatos.h"

/// What `FrmExistformato` holds: the choice of a stored format for one session. The user's changes
/// are for this export only.
class Formato_Existente : public Modelo_Formato {
public:
    /// @param destino  "E" export, "I" print
    Formato_Existente(const Sesion_Elegida& sesion, const QString& destino);

    int indice = -1;             ///< current entry of `CbFormatos`
    bool check2_visible = true;  ///< `Check2`, which is then checked
    bool label2_visible = false; ///< `Label2`, red
    QString label2 = "Modificable";
    /// `BtnAgregar`, `BtnQuitar`, `Check1`, `Btnsubir` and `BtnBajar` are disabled.
    bool bloqueado = false;

    /// Fills the list of formats. @return false when there is none: the box has been shown and the
    /// dialog isn't
    virtual bool Ver();
    /// The user picks an entry of `CbFormatos`.
    void Elegir(int entrada);
    /// `BtnAceptar`: hands the fields on, may ask for offsets, and opens the output.
    bool Aceptar(const std::function<void()>& ocultar) override;

    const Sesion_Elegida& Sesion() const { return sesion; }

protected:
    /// Fills the lists with the fields of the format and those on offer beside them.
    virtual void Leer_Campos(const QString& nombre);
    /// What is handed on to the output.
    virtual Trabajo_Exportar Trabajo() const;

private:
    void Leer_Formato(const QString& nombre);

    Sesion_Elegida sesion;
    QString destino;
};

/// The browser's buttons on the session of its current row: beep without one, box without lines,
/// the format dialog of the family otherwise.
/// @param destino  "E" export, "I" print
void Exporta_o_Imprime_Formato_Existente(const std::optional<Sesion_Elegida>& sesion,
                                         const QString& destino);
void Exporta_Formato_Nuevo(const std::optional<Sesion_Elegida>& sesion);
