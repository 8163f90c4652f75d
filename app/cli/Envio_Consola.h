#pragma once

#include "app/cli/Ordenes.h"

#include <functional>

/// An upload without a window: the dialogs that its road shows are answered, the sending dialog is
/// its conversation on a port of the command line.
struct Envio_Consola {
    QString dispositivo;
    bool seguimiento = false;

    /// Runs a road that ends in the sending dialog; labels go to the messages, what was sent,
    /// refused and repeated and the seconds are printed.
    /// @return true when all was sent
    bool Correr(const Contexto& contexto, const std::function<void()>& camino) const;
};
