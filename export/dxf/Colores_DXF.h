#pragma once

#include <QString>

#include <span>

/// The colours that drawing programs give to their colour numbers.

/// Components, 0 to 255.
struct Color_RGB {
    int rojo = 0, verde = 0, azul = 0;
    bool operator==(const Color_RGB&) const = default;
};
/// @param numero  1 to 255; any other is the white of 7
Color_RGB Color_De_Numero(int numero);
/// The numbers that have a name of their own.
struct Color_Con_Nombre {
    int numero;
    QString nombre;
};
std::span<const Color_Con_Nombre> Colores_Con_Nombre();
