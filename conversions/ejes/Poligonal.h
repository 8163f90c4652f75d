#pragma once

#include "conversions/ejes/Modelo_Eje.h"
#include "conversions/suelo/Informe_Lectura.h"

#include <vector>

/// Vertex of a polygon of tangents with its curve: clothoid, arc, clothoid. The side follows from
/// the polygon.
struct Vertice_Poligonal {
    Punto_Plano punto;
    double radio = 0;      ///< metres, 0 a corner
    double A1 = 0, A2 = 0; ///< parameters of entry and exit, metres, 0 without that clothoid
    qint64 linea = 0;      ///< line of the source, from 1
    QString texto;
};

/// Makes the axis of a polygon: straights on its legs, curves at its vertices. A curve that is
/// impossible or whose tangents do not fit the legs leaves the corner, and is noted; a vertex that
/// falls on the one before is left out.
/// @param pk  start station, metres
/// @throws Fallo_Conversion with fewer than two vertices
Eje Componer_Poligonal(std::vector<Vertice_Poligonal> vertices, double pk,
                       Informe_Lectura& informe);
