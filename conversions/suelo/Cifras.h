#pragma once

#include <QByteArray>

/// Numbers as the targets show them: with fixed decimals.
namespace Cifras {

/// Appends `valor` with `decimales` places, "." as mark, no plus sign, and zero without a sign.
void Anadir_Fijo(QByteArray& salida, double valor, int decimales);
QByteArray Fijo(double valor, int decimales);
/// The same into a buffer. @param destino  room for `FIJO_MAXIMO` characters
/// @return behind the last character written
char* Poner_Fijo(char* destino, double valor, int decimales);
inline constexpr int FIJO_MAXIMO = 400; ///< the longest double has 309 digits before the mark

/// Azimuth in gon with 4 places in [0, 400); what would round to 400.0000 is 0.0000.
/// @param radianes  any turn
QByteArray Azimut(double radianes);

} // namespace Cifras
