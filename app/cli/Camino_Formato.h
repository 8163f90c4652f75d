#pragma once

#include "app/cli/Ordenes.h"
#include "formats/Formato_Existente.h"

/// The road of a session through a stored format, as its dialog goes it, without a window.
struct Camino_Formato {
    Sesion_Elegida sesion;
    QString formato; ///< its name
    QString destino; ///< "E" export, "I" print
    /// X, Y, Z as typed; nothing: no offsets are asked for.
    std::optional<QStringList> desplazamiento = {};
    /// What the user changes in the dialog before accepting it.
    std::function<void(Formato_Existente&)> cambiar = [](Formato_Existente&) {};
    /// In place of the output's dialog.
    std::function<void(const Trabajo_Exportar&)> abrir = {};
};
/// @return false, the reason told, when the session has no lines or there is no such format
bool Recorrer(const Camino_Formato& camino, const Contexto& contexto);
