#pragma once

#include <QString>

/// The frames of an upload to a KRT300 or PX7, as texts of the page; docs/formas/krt300.md draws
/// them.
namespace Tramas_KRT300 {

/// Characters of the data in one block.
inline constexpr qsizetype LARGO_BLOQUE = 128;

/// Ahead of coordinates, in this order; neither depends on the data.
QString Apertura();
QString Cabecera();
/// Block `numero`, from 1, of the data: its 128 characters filled with blanks, sequence digit and
/// checksum.
QString Bloque(const QString& datos, qint64 numero);
QString Cierre();

} // namespace Tramas_KRT300
