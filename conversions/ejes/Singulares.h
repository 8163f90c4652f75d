#pragma once

#include "conversions/ejes/Modelo_Eje.h"
#include "conversions/suelo/Informe_Lectura.h"

#include <vector>

/// One row of a source that lists the singular points of an axis: the point, and the kind and data
/// of the element that starts there. The last row may be the end point.
struct Fila_Singular {
    Clase_Elemento clase = Clase_Elemento::Recta;
    double pk = 0; ///< metres
    Punto_Plano punto;
    double azimut = 0;   ///< radians
    double radio = 0;    ///< of an arc, right positive, metres; 0 none
    double A = 0;        ///< of a clothoid; 0 when the source doesn't tell it
    double longitud = 0; ///< metres
    qint64 linea = 0;    ///< line of the source, from 1
    QString texto;       ///< the line
};

/// Makes the axis of its rows. Coordinates, azimuth and length are the row's, nothing is fitted
/// again; a clothoid's curvatures come from its neighbours, so that entry, exit, S and egg need no
/// mark in the source. An impossible element is replaced by the straight to the next point, and
/// noted, as is a gap of more than 5 cm between an element's end and the next point.
/// @param hay_fin  the last row is the end point, not an element
/// @throws Fallo_Conversion when no element is left
Eje Componer_Singulares(const std::vector<Fila_Singular>& filas, bool hay_fin,
                        Informe_Lectura& informe);

/// The gap that is noted, metres.
inline constexpr double SALTO_MAXIMO = 0.05;
