#pragma once

#include "export/plano/Plano.h"

#include <QByteArray>

/// Reads a drawing in text form: points, texts, lines, polylines, circles and arcs of its section of
/// entities, with their layers and colours; other entities are counted and passed over.
struct Dibujo_Leido {
    Plano plano;
    qint64 pasadas = 0; ///< entities of other kinds
};
/// @throws Error_Ejecucion 13, naming the line, when a group's code or number is none or the file is
///         no drawing in text form; 62 when it ends before its section does
Dibujo_Leido Leer_DXF(const QByteArray& bytes);
