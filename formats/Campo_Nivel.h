#pragma once

#include <QString>

/// A field of a level format as `Formatos2.Campo` keeps it: the name filled to 40 characters, then
/// the mark, two characters, the first of which tells the half that the field stands in.

/// The halves of a level format, in their order.
enum class Mitad_Nivel { Cabecera, Detalle };

/// @return the half as the mark and the SQL texts have it: "0" head, "1" detail
QString Clave_De(Mitad_Nivel mitad);

/// @param nombre  cut to 40 characters
QString Marcar_Campo_Nivel(const QString& nombre, Mitad_Nivel mitad);
/// @return the name alone
QString Nombre_Campo_Nivel(const QString& campo);
