#pragma once

#include "export/GuardarN.h"

// The writers of text files. Their options are the separator and "S" when titles are wanted.

/// "TXF": columns at fixed places, a cell being left-aligned in the width of its column, never cut.
bool Escribir_Texto_Formateado(const Tarea_Exportar& tarea);

/// "TXT": only the cells that hold something; an empty one adds nothing, not even a separator, so
/// that the values behind it move left.
bool Escribir_Texto_Separado(const Tarea_Exportar& tarea);

/// Widths of the columns: the longest cell, and the title when there are titles.
void Anchos_Columna(const QStringList& campos, const Filas_Exportar& filas,
                    std::vector<qsizetype>& anchos, bool con_titulos);
/// Widths from the titles alone, trimmed; 0 without titles.
void Anchos_Titulos(const QStringList& campos, const Filas_Exportar& filas,
                    std::vector<qsizetype>& anchos, bool con_titulos);

/// @return true for the first cell of a row that stands for a kept level line: a head line is
/// marked by code 6, a summary line by code 5
bool Es_Fila_Marcada(const QString& primera_celda);

/// Text of a kept level line: the fields that the kind `id` lists.
QString Linea_Campos_Nivel(Base& bd, const QString& linea, const QString& id);
