#pragma once

#include <QByteArray>
#include <QString>

/// How the targets are written: numbers in fixed decimals, and what becomes of a target that
/// failed.
namespace Escritura {

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

/// Writes a target whole or not at all: what stood under the name stays until the new one is
/// complete. @throws Fallo_Conversion with the system's reason
void Guardar(const QString& ruta, const QByteArray& bytes);

/// Takes away what stands under the name of a target whose conversion failed: callers take a target
/// that exists for a success, and an old road must not pass for the new one. Only a plain, writable
/// file is taken away.
void Retirar_Destino(const QString& ruta);

/// @return true when both names lead to the same existing file
bool Mismo_Fichero(const QString& a, const QString& b);

} // namespace Escritura
