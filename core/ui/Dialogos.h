#pragma once

#include "core/ui/Ventana.h"

/// Every dialog is one shared instance, made at its first use and gone when it is unloaded.
namespace Dialogos {

template <typename T> QPointer<T>& Casilla()
{
    static QPointer<T> casilla;
    return casilla;
}

/// @return the loaded instance, or null: to reach a dialog only if it is there
template <typename T> T* Cargado()
{
    QPointer<T>& casilla = Casilla<T>();
    return casilla && !casilla->Descargada() ? casilla.data() : nullptr;
}

/// @return the instance, made now if there is none
template <typename T> T& Unico()
{
    if (T* const hay = Cargado<T>()) return *hay;
    Casilla<T>() = new T;
    return *Casilla<T>();
}

/// @return true if the dialog is loaded and on the screen
template <typename T> bool Visible()
{
    const T* const hay = Cargado<T>();
    return hay && hay->isVisible();
}

} // namespace Dialogos
