#pragma once

#include <QByteArray>
#include <QStringView>

namespace Jet {

/// Weights of a name in the file's "General" order, as an index stores them behind the column's
/// mark. Capitals weigh what small letters do, accents less than any letter; names of equal
/// weights are one name to the engine. Letters, digits, blank and "_" weigh what the engine's own
/// files show; the other characters of Windows-1252 weigh what is published of that order; those
/// beyond the page have no place in an index and weigh only enough to tell names apart.
/// @return the weights, ended by a zero byte
QByteArray Pesos_Nombre(QStringView nombre);

} // namespace Jet
