#pragma once

#include "conversions/rasantes/Modelo_Rasante.h"
#include "conversions/suelo/Informe_Lectura.h"

#include <vector>

/// What a source gives of a vertex's curve.
enum class Dato_Acuerdo { Longitud, Kv, Tangente, Bisectriz };

/// A vertex of a gradient as a source gives it.
struct Vertice_Fuente {
    double pk = 0;   ///< station, metres
    double cota = 0; ///< elevation, metres
    Dato_Acuerdo dato = Dato_Acuerdo::Longitud;
    double valor = 0; ///< metres (Kv or radius, tangent, bisector, length); 0 no curve
    qint64 linea = 0; ///< line of the source, from 1
    QString texto;
};

/// Makes the gradient of its vertices. With θ the difference of the slopes at a vertex the length
/// of its parabola is |Kv|·θ, 2·T, 8·f/θ, or the one given. What cannot be is noted: a station that
/// is not above the one before (left out); a curve on an end vertex, a bisector without change of
/// slope, a negative length, a curve that overlaps the one before or a neighbouring vertex (the
/// vertex stays, without curve).
/// @throws Fallo_Conversion with fewer than two vertices
Rasante Resolver_Rasante(const std::vector<Vertice_Fuente>& vertices, Informe_Lectura& informe);
