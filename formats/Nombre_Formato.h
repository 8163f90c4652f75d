#pragma once

#include <QString>

/// A format's name and description, as the dialogs and the command line take them.

/// Widths of their columns in `Formatos1`.
inline constexpr int ANCHO_NOMBRE = 50, ANCHO_DESCRIPCION = 255;

/// The one test of a format's name, which everyone asks who stores a format.
/// @return true when it isn't blank; otherwise false, the box shown
bool Depura(const QString& nombre);

/// A name as an SQL literal. Deliberate: names go into the statements as they stand, so that an
/// apostrophe breaks them. @throws Error_Ejecucion 3075 for a name with an apostrophe
QString Literal_Formato(const QString& nombre);
