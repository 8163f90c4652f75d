#pragma once

#include <array>
#include <QString>

/// What has a colour of its own in a drawing, in the order of `DXF.Ini`.
enum class Color_DXF { Punto_2D, Punto_3D, Codigo, Numero, Cota };
inline constexpr int COLORES_DXF = 5;
/// Arrangements of the labels, and colour numbers, both from 1.
inline constexpr int FORMATOS_DXF = 6, COLOR_TOPE = 255;

/// Settings of a drawing, kept in `DXF.Ini` from one to the next.
struct Ajustes_DXF {
    /// Colour numbers of the drawing program, 1 to 255, by `Color_DXF`.
    std::array<int, COLORES_DXF> colores{7, 3, 5, 1, 2};
    int formato = 1;           ///< arrangement of the labels, 1 to 6
    QString texto;             ///< a line of the user's own
    double altura = 2;         ///< of the letters, metres
    QString inclinacion = "0"; ///< of the letters, degrees
    int decimales = 3;         ///< of the elevations

    int Color(Color_DXF de) const { return colores[std::size_t(de)]; }
    bool operator==(const Ajustes_DXF&) const = default;
};

/// What the boxes of the dialog hold.
struct Textos_DXF {
    QString formato, altura, inclinacion, decimales;
};
Textos_DXF Textos_De(const Ajustes_DXF& ajustes);
/// Takes the texts of the boxes over, a comma counting as the decimal mark.
/// @return what is wrong with them, as the user reads it, and then `ajustes` stays; else empty
QString Tomar_Textos(const Textos_DXF& textos, Ajustes_DXF& ajustes);

/// Settings of `DXF.Ini` in the install directory: one value a line, the five colours, arrangement,
/// text, height, inclination, decimals.
/// @return the defaults when the file is missing or any of its lines can't be what it should
Ajustes_DXF Leer_Ajustes_DXF();
/// Writes them there. @throws Error_Ejecucion as `Ficheros::Escribir`
void Guardar_Ajustes_DXF(const Ajustes_DXF& ajustes);
