#pragma once

#include "codes/Librerias.h"

/// What `FrmCREDLib1` and `frmCodCrear800` hold: the header of a library that is made, or that gets
/// another description. The dialog hands what is typed straight into the members.
class Ficha_Libreria {
public:
    /// @param editada  the library to be described anew; none to make one
    explicit Ficha_Libreria(Serie serie, const std::optional<Cabecera_Libreria>& editada = {});

    QString titulo;
    QString codigo;      ///< `Text1`, `txtCod`
    QString descripcion; ///< `Text2`, `txtDes`
    bool nueva = true;   ///< the code can be typed; that of a library that exists stays

    /// Stores it. @return true when the dialog is to be unloaded, false after a box
    bool Aceptar();
    /// Key of the library that was stored; empty until then.
    const QString& Guardada() const { return guardada; }
    const Serie_Librerias& Serie_Suya() const { return serie; }

private:
    bool Guardar();

    const Serie_Librerias& serie;
    QString guardada;
};

/// The box for a key that is in use.
inline constexpr char16_t CODIGO_EXISTE[] = u"El Código ya existe, introduzca uno diferente";
