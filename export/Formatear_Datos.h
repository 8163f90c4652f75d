#pragma once

#include "export/Tarea_Exportar.h"

#include <vector>

/// Stage 1 of an export: turns a session's lines into a table of text cells, one column a field of
/// the format and one row an output row.

/// Rows that the table can hold for a session of points.
inline constexpr std::size_t MAX_FILAS = 32768;

/// A stretch of lines that belong to one point, both ends included.
struct Corrida_Punto {
    QString punto;
    qint64 secuencia_desde = 0, secuencia_hasta = 0;
};
/// The runs of a session, in the order of its lines: each time the point's name changes one opens,
/// and the first line always opens one. The last reaches up to 999999.
/// @throws Error_Ejecucion 9 for more than `MAX_FILAS` runs
std::vector<Corrida_Punto> Buscar_Corridas(Base& bd, qint64 id);

/// Stage 1, as the session's family has it. Series A: one row a run, as `Extraer_Punto` decodes it.
/// Series B: one row a record. The level, reached when another family is in force: one row a
/// record, only those of measurements filled. Rows without content are dropped, columns padded on
/// the right.
/// @throws Error_Ejecucion 9 as above, those of the database
Datos_Formateados Formatear_Datos(const Origen_Exportar& origen);
/// Drops the rows whose cells are all empty; a table without content stays as it is.
void Ajustar_Filas(Filas_Exportar& filas);
/// Pads the cells of each column with blanks on the right to the length of its longest.
void Igualar_Columnas(Filas_Exportar& filas);
