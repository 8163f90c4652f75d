#pragma once

#include "conversions/puntos/Modelo_Puntos.h"

#include <QByteArray>

/// Writers of point files. They are drawn in docs/formas/ficheros-de-puntos.md.
namespace Escritores_Puntos {

/// The point file of the uploads: "name,x,y,z,code" a line, the number texts as they came.
QByteArray Krt(const Puntos& puntos, const QString& destino);

/// The level's upload file: lines framed as the level's own, with their checksum; heights in tenths
/// of a millimetre, rounded half away from zero on their decimal reading.
/// @throws Fallo_Conversion when a height is no number
QByteArray X(const Puntos& puntos, const QString& destino);

} // namespace Escritores_Puntos
