#pragma once

#include <functional>
#include <QString>

class Descarga;

/// The dialogs that the transfer flows show, as questions: the windows, the command line and the
/// tests set them. A flow runs whole without a window.
struct Peticiones_Transfer {
    /// Hides `FrmIni`, without closing it.
    std::function<void()> Ocultar_FrmIni = [] {};
    /// Shows `FrmRecuerde` modally.
    std::function<void()> Mostrar_Recordatorio = [] {};
    /// Asks for the session name in `FrmFic`; empty when cancelled.
    std::function<QString()> Pedir_Nombre_Sesion = [] { return QString(); };
    /// Shows the step help of an operation modally; `Paso_Ayuda` has been set.
    std::function<void(const QString& tipo_ope, const QString& ope)> Mostrar_Pasos =
        [](const QString&, const QString&) {};
    /// The conversation of the download dialog, which is loaded (and not shown) if it isn't yet;
    /// null without such a dialog.
    std::function<Descarga*()> Dialogo_Descarga = []() -> Descarga* { return nullptr; };
    /// Shows the download dialog without blocking.
    std::function<void()> Mostrar_Descarga = [] {};
};
Peticiones_Transfer& Peticiones_De_Transfer();
