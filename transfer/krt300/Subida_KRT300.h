#pragma once

/// The starts of the uploads to a KRT300 or PX7: file, separator, offsets, conversion and, when all
/// is well, the sending dialog. A failure has been told and sends nothing.

/// A point file.
void Subir_Puntos(int operacion);
/// A text file of codes.
void Subir_Libreria(int operacion);
