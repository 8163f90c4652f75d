#pragma once

#include "core/Interfaz.h"

#include <functional>
#include <span>

/// What a writer says, in place of the report, when an error of this number ends it.
struct Aviso_De_Fallo {
    int numero;
    const char16_t* texto;
    Icono icono;
    const char16_t* titulo = u""; ///< empty: the program's name
};

/// All that a writer says when it fails.
struct Fallos_Escritor {
    const char16_t* general; ///< message of the report, for every number without a row
    std::span<const Aviso_De_Fallo> propios;
};

/// The one trap of all writers: runs the writing and reports what ends it.
/// @return false when an error did
bool Con_Trampa(const Fallos_Escritor& fallos, const std::function<void()>& escritura);
