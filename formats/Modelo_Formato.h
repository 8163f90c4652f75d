#pragma once

#include "formats/ModFormatos.h"
#include "formats/Nombre_Formato.h"

#include <functional>

/// What every dialog over a format holds, whatever it is for. The dialog shows the public members
/// after each call and hands the user's changes of `descripcion`, `cabeceras` and `listas` straight
/// into them.
class Contenido_Formato {
public:
    QStringList nombres;    ///< the names on offer
    QString descripcion;    ///< `TxtDes`
    Dos_Listas listas;      ///< `List1`, `List2`
    bool cabeceras = false; ///< the box of the titles: `Check1`, `ChkCab`
};

/// A dialog that ends with `BtnAceptar` and may go on to an output.
class Modelo_Formato : public Contenido_Formato {
public:
    virtual ~Modelo_Formato() = default;

    QString titulo;

    /// `BtnAceptar`.
    /// @param ocultar  hides the dialog; called before the next one opens
    /// @return true when the dialog is to be unloaded; otherwise it stays as it is
    virtual bool Aceptar(const std::function<void()>& ocultar) = 0;

protected:
    /// How the way to the output went.
    enum class Paso { Sigue, Cancelado, Fallo };
    /// Hands the chosen fields on and asks for the offsets (`Preparar_Exportacion`); a failure has
    /// been reported.
    Paso Preparar(const QString& maquina) const;
};

/// Puts the fields in force for the export, asks for the offsets when the settings and a coordinate
/// among the fields want it, and tells how it went. Every export begins without offsets.
/// @return false when the user cancelled
/// @throws Error_Ejecucion 9 for more fields than `Campos_Exportar` holds
bool Preparar_Exportacion(const QString& maquina, const QStringList& campos, bool cabeceras);
