#pragma once

#include <functional>
#include <vector>

/// Gives a test the global room of a program that has just started: every global of ModEstTotal is
/// empty ("0" for the offsets). At the end each gets its former value back, and so does all that
/// the upper floors have announced in core/Estado_Global: their requests to dialogs and their
/// globals.
class Sala_Global {
public:
    Sala_Global();
    ~Sala_Global();
    Sala_Global(const Sala_Global&) = delete;
    Sala_Global& operator=(const Sala_Global&) = delete;

private:
    template <class T> void Guardar(T& global, T inicial);
    std::vector<std::function<void()>> devolver;
    std::size_t conocidas = 0;
};
