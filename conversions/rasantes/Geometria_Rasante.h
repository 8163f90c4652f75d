#pragma once

#include "conversions/rasantes/Modelo_Rasante.h"

#include <optional>

/// Geometry of a gradient: straight grades, and at the vertices parabolas that reach half their
/// length to either side. Slopes are positive upwards.
namespace Geometria_Rasante {

/// @param rasante  at least two vertices, stations ascending, curves not overlapping
/// @param pk       station, metres
/// @return elevation in metres, exact but for the rounding of the numbers; nothing off the gradient
std::optional<double> Cota(const Rasante& rasante, double pk);

} // namespace Geometria_Rasante
