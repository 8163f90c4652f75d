#pragma once

#include <QString>

/// Numbers of the station layouts: rounded on the digits that the instrument wrote, a half away from
/// zero, never through a binary fraction.
namespace Redondeo {

/// `texto` with exactly so many decimals and a point: "12.34565" with 4 is "12.3457", ".5" is
/// "0.5000", "-0.00001" is "-0.0000".
/// @return the text itself when it is no number
QString Redondear(const QString& texto, int decimales);

/// @return true for a text that is a number whole: a sign, digits, one point, perhaps an exponent
bool Es_Numero(const QString& texto);

} // namespace Redondeo
