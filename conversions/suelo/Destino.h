#pragma once

#include <QByteArray>
#include <QString>

/// The file that a conversion writes, and what becomes of it when the conversion failed.
namespace Destino {

/// Writes a target whole or not at all: what stood under the name stays until the new one is
/// complete. @throws Fallo_Conversion with the system's reason
void Guardar(const QString& ruta, const QByteArray& bytes);

/// Takes away what stands under the name of a target whose conversion failed: callers take a target
/// that exists for a success, and an old road must not pass for the new one. Only a plain, writable
/// file is taken away.
void Retirar(const QString& ruta);

/// @return true when both names lead to the same existing file
bool Mismo_Fichero(const QString& a, const QString& b);

} // namespace Destino
