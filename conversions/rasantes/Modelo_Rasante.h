#pragma once

#include <QString>
#include <vector>

/// Vertex of a gradient; its curve is a parabola that reaches half its length to either side.
struct Vertice_Rasante {
    double pk = 0;       ///< station, metres
    double cota = 0;     ///< elevation, metres
    double longitud = 0; ///< length of the curve, metres, 0 without curve
};

/// A vertical alignment: at least two vertices, their stations ascending.
struct Rasante {
    QString nombre; ///< empty when the source has none
    std::vector<Vertice_Rasante> vertices;
};
