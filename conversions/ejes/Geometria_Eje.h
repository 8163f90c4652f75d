#pragma once

#include "conversions/ejes/Modelo_Eje.h"

#include <numbers>
#include <optional>

/// Geometry of a horizontal axis. x = east, y = north, metres; azimuths from north clockwise,
/// radians; curvature and radius positive to the right.
namespace Geometria_Eje {

/// Radians in a gon.
inline constexpr double GON = std::numbers::pi / 200;

/// Elements shorter than this are no elements, metres.
inline constexpr double LONGITUD_MINIMA = 0.0005;
/// Radii and parameters smaller than this count as 0, metres: they would be written as 0.000.
inline constexpr double RADIO_MINIMO = 0.0005;

struct Situacion {
    Punto_Plano punto;
    double azimut = 0;
};

/// @return azimuth from `a` to `b` in [0, 2π); 0 when the points coincide
double Azimut(Punto_Plano a, Punto_Plano b);
/// @return distance, metres
double Distancia(Punto_Plano a, Punto_Plano b);
/// @return `angulo` in (-π, π]
double Giro(double angulo);
/// The point at `distance` metres (negative: backwards) from `p` in the direction `azimut`.
Punto_Plano Polar(Punto_Plano p, double azimut, double distancia);

/// 1/R of a signed radius; 0 for a radius of 0 or below `RADIO_MINIMO`.
double Curvatura(double radio);

/// Point and azimuth on `e` (or on its continuation) at `s` metres behind its start:
/// a(s) = a0 + k1·s + (k2 − k1)·s²/(2L), the point by integrating its sine and cosine.
/// A straight and an arc are in closed form. A clothoid is integrated by Gauss's five-point rule on
/// panels that turn at most half a radian: good to 0.1 mm over any road element (1e-9 m up to ten
/// kilometres and ten turns), besides the rounding of the coordinates themselves.
Situacion Avanzar(const Elemento_Eje& e, double s);
/// The same at the element's end.
Situacion Final(const Elemento_Eje& e);

/// Half a vertex's curve: a clothoid from a straight to the radius R, in the frame of the straight.
struct Clotoide_Local {
    double longitud = 0; ///< A²/R, metres
    double tau = 0;      ///< end angle L/(2R), radians
    double X = 0, Y = 0; ///< end point, along the straight and across it, metres
    double p = 0;        ///< shift of the arc from the straight, metres
    double q = 0;        ///< the circle's foot on the straight, metres from the clothoid's start
};

/// @param radio  metres, above 0
/// @param A      parameter, metres, not negative; 0 is no clothoid, all members 0
/// Accuracy as `Avanzar`.
Clotoide_Local Clotoide_De(double radio, double A);

/// A curve of clothoid, arc, clothoid between two straights.
struct Tangentes {
    Clotoide_Local entrada, salida;
    double T1 = 0, T2 = 0; ///< tangent lengths from the vertex, metres
    double arco = 0;       ///< length of the arc, metres, not negative
};

/// @param giro   deflection at the vertex without its sign, radians, in (0, π)
/// @param radio  metres, above 0
/// @param A1,A2  parameters of entry and exit, metres, 0 without that clothoid
/// @return nothing when the clothoids turn more than the deflection
std::optional<Tangentes> Tangentes_De(double giro, double radio, double A1, double A2);

/// Centre of an arc: start + R·(cos a, −sin a). The element must have a curvature.
Punto_Plano Centro(const Elemento_Eje& e);

/// Where the tangents at the ends of a curve meet: from `inicio` along `azimut_inicio` and through
/// `fin` in `azimut_fin`. If the turn is below 1e-6 rad: half of `longitud` ahead of the start.
Punto_Plano Interseccion(Punto_Plano inicio, double azimut_inicio, Punto_Plano fin,
                         double azimut_fin, double longitud);

} // namespace Geometria_Eje
