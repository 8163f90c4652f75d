#pragma once

#include <QString>
#include <vector>

/// x = east, y = north (first and second coordinate), metres.
struct Punto_Plano {
    double x = 0;
    double y = 0;
};

/// The values are the kind's number in the instrument's ".hal" form.
enum class Clase_Elemento { Recta = 1, Arco = 2, Clotoide = 3 };

/// One element of a horizontal axis. Curvature is 1/R, positive to the right, and runs linearly
/// from `k1` to `k2` along the element.
struct Elemento_Eje {
    Clase_Elemento clase = Clase_Elemento::Recta;
    Punto_Plano inicio;
    double azimut = 0;   ///< at the start, radians from north clockwise, any turn
    double longitud = 0; ///< metres, above 0
    double k1 = 0;       ///< curvature at the start, 1/m; 0 on a straight
    double k2 = 0;       ///< curvature at the end; equal to `k1` on an arc
    double A = 0;        ///< parameter of a clothoid, metres, positive; 0 otherwise
};

/// A horizontal axis. The stations behind the start are the start's plus the sum of the lengths.
struct Eje {
    QString nombre;       ///< empty when the source has none
    double pk_inicio = 0; ///< metres
    std::vector<Elemento_Eje> elementos;
    Punto_Plano fin;
    double azimut_fin = 0; ///< radians from north clockwise
};
