#include "export/dxf/Colores_DXF.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Color_RGB PRIMEROS[] = {
    {255, 255, 255}, {255, 0, 0},   {255, 255, 0},   {0, 255, 0},     {0, 255, 255},
    {0, 0, 255},     {255, 0, 255}, {255, 255, 255}, {128, 128, 128}, {192, 192, 192},
};
constexpr int PRIMER_GRIS = 250;
constexpr int GRISES[] = {51, 80, 105, 130, 190, 255};
// From 10 to 249: ten numbers a hue, 15 degrees apart, five values each whole and half saturated.
constexpr int VALORES[] = {255, 189, 129, 104, 79};

Color_RGB Del_Circulo(int numero)
{
    const double tono = (numero / 10 - 1) * 15 / 60.0; // sixths of the turn
    const double valor = VALORES[numero % 10 / 2];
    const double minimo = numero % 2 == 0 ? 0 : valor * 2 / 3;
    const auto parte = [&](double donde) {
        const double lejos = std::abs(std::remainder(tono - donde, 6.0));
        const double lleno = std::clamp(2 - lejos, 0.0, 1.0);
        return int(minimo + (valor - minimo) * lleno);
    };
    return {parte(0), parte(2), parte(4)};
}

} // namespace

Color_RGB Color_De_Numero(int numero)
{
    if (numero < 1 || numero > 255) return PRIMEROS[7];
    if (numero < int(std::size(PRIMEROS))) return PRIMEROS[numero];
    if (numero < PRIMER_GRIS) return Del_Circulo(numero);
    const int gris = GRISES[numero - PRIMER_GRIS];
    return {gris, gris, gris};
}

std::span<const Color_Con_Nombre> Colores_Con_Nombre()
{
    static const Color_Con_Nombre colores[] = {
        {1, "rojo"},    {2, "amarillo"}, {3, "verde"},       {4, "cian"},       {5, "azul"},
        {6, "magenta"}, {7, "blanco"},   {8, "gris oscuro"}, {9, "gris claro"},
    };
    return colores;
}
