#pragma once

#include <QString>

/// File filter of an operation, from its `Conv` keys: "descripción|patrón" pairs joined by "|".
/// An operation without a row ends the program after its message: the database doesn't match it.
/// @param maquina  key of the family
/// @param tipo_ope  "D" for downloads, "C" for uploads
/// @return null in that case, for the caller to stop at; empty when `Conv` is
QString Filtro_Extensiones(const QString& maquina, int operacion, const QString& tipo_ope);
