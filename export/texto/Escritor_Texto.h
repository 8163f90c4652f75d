#pragma once

// The form: docs/formas/textos.md

#include "export/Tarea_Exportar.h"

#include "export/Trampa_Escritor.h"

/// What a writer of columns at fixed places says when it fails.
extern const Fallos_Escritor FALLOS_DEL_FORMATEADO;

// The writers of text files; their options are of the form `Opciones_Texto`.

/// "TXF": columns at fixed places, a cell being left-aligned in the width of its column, never cut.
bool Escribir_Texto_Formateado(const Tarea_Exportar& tarea);

/// "TXT": only the cells that hold something; an empty one adds nothing, not even a separator, so
/// that the values behind it move left.
bool Escribir_Texto_Separado(const Tarea_Exportar& tarea);
