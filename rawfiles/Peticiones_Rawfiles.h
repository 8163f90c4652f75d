#pragma once

#include <functional>
#include <optional>
#include <QStringList>

/// What the raw files ask and say outside the message boxes: the windows, the command line and the
/// tests set them.
struct Peticiones_Rawfiles {
    /// Asks in `Peticion` for the five texts of a levelling book: serial number, staff 1, staff 2,
    /// operator, company. Nothing when it is closed without accepting: the export ends.
    std::function<std::optional<QStringList>()> Pedir_Datos_IGN = [] {
        return std::optional<QStringList>();
    };
    /// Puts a line where the user sees it once the boxes are closed; empty: takes it away.
    std::function<void(const QString&)> Poner_Aviso = [](const QString&) {};
};
Peticiones_Rawfiles& Peticiones_De_Rawfiles();
