#pragma once

#include <functional>
#include <vector>

/// What the floors above core keep once for the whole process (their requests to dialogs, the few
/// globals that the program defines): each announces itself here, so that who needs a process as it
/// starts, a test above all, puts all of it back without knowing the floors.
namespace Estado_Global {

struct Pieza {
    /// Remembers the present value. @return puts it back
    std::function<std::function<void()>()> recordar;
    /// Gives it the value that it was announced with.
    std::function<void()> reiniciar;
};

/// All that has been announced so far, in that order.
const std::vector<Pieza>& Piezas();
void Anotar(Pieza pieza);

/// Announces `valor`, which lives as long as the process. @return true, for a static initialiser
template <class T> bool Anotar(T& valor)
{
    Anotar(Pieza{[&valor] { return [&valor, antes = valor] { valor = antes; }; },
                 [&valor, primero = valor] { valor = primero; }});
    return true;
}

/// The one `T` of the process, made by `hacer` and announced at its first use.
template <class T> T& Unico(T (*hacer)() = [] { return T(); })
{
    static T unico = hacer();
    [[maybe_unused]] static const bool anotado = Anotar(unico);
    return unico;
}

} // namespace Estado_Global
