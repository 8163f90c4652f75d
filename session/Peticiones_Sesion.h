#pragma once

#include <functional>
#include <QString>

/// The small dialogs that transfers, conversions and exports share, as questions: the windows, the
/// command line and the tests set them, so that a whole flow runs without a window.
struct Peticiones_Sesion {
    /// Asks for the separator of fields in `FrmSelSep`; empty when cancelled.
    std::function<QString()> Pedir_Separador = [] { return QString(); };
    /// Asks for the coordinate offsets in `FrmOffset`, which puts them in force when accepted.
    /// @param formato  "e,d"; the other three tell which boxes are enabled
    /// @return false when cancelled: the export or upload ends
    std::function<bool(bool cx, bool cy, bool cz, const QString& formato)> Pedir_Desplazamientos =
        [](bool, bool, bool, const QString&) { return false; };
    /// Shows the points whose coordinates the instrument can't hold in `FrmErrCoord`.
    /// @param lista  points joined with code 6, their name and coordinates with code 5
    std::function<void(const QString& lista)> Mostrar_Puntos_Malos = [](const QString&) {};
};
Peticiones_Sesion& Peticiones_De_Sesion();
