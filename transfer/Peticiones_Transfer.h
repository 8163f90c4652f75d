#pragma once

#include "transfer/enlace/Recepcion.h"

#include <functional>
#include <QString>

class Descarga;
class Envio;

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
    /// Receives a code library of series A, from the question for its destination on.
    std::function<void(int operacion)> Recibir_Libreria = [](int) {};
    /// Stores a code library that was received; its destination and name are those of the reception.
    std::function<Resultado_Recepcion(const Datos_Recepcion& datos)> Guardar_Libreria =
        [](const Datos_Recepcion&) { return Resultado_Recepcion(); };
    /// As `Dialogo_Descarga` and `Mostrar_Descarga`, for the dialog of a reception that begins among
    /// the libraries.
    std::function<Descarga*()> Dialogo_Recepcion = []() -> Descarga* { return nullptr; };
    std::function<void()> Mostrar_Recepcion = [] {};
    /// The conversation of the sending dialog, as for `Dialogo_Descarga`.
    std::function<Envio*()> Dialogo_Envio = []() -> Envio* { return nullptr; };
    /// Shows the sending dialog modally, and unloads it when it ends.
    std::function<void()> Mostrar_Envio = [] {};
};
Peticiones_Transfer& Peticiones_De_Transfer();
