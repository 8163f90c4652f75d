#pragma once

#include <QString>

/// The starts of the uploads to a KRT800 that read a plain file. A failure has been told and sends
/// nothing.

/// @param filtro  of the file dialog: "descripción|patrón" pairs joined by "|"
void Subir_Puntos_KRT800(int operacion, const QString& filtro);
/// A text file of codes: code, entity and layer separated by commas.
void Subir_Libreria_KRT800(const QString& filtro);
/// The designs by their operation; the file dialog of the road takes `filtro`.
void Subir_Diseno_KRT800(int operacion, const QString& filtro);
