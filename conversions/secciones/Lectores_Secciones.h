#pragma once

#include "conversions/secciones/Modelo_Secciones.h"
#include "conversions/suelo/Texto_Fuente.h"

/// Readers of cross sections, one a source layout. Each gives the sections in file order, their
/// points sorted by offset.
/// @throws Fallo_Conversion for a data row that can't be read, a counted section that lacks rows,
///         and a text without sections: sections have no "partly bad", since a point that is silently
///         missing costs more than a refused file
namespace Lectores_Secciones {

/// CLIP. Lines "*TER" and "*TRV" switch to blocks ("station,n,..." and n lines "offset,height"),
/// "*REP" to rows ("station,offset,height[,code]"); other "*" lines are skipped. `Clip_Bloques` and
/// `Clip_Filas` differ in the form that holds before the first such line.
Secciones Clip_Bloques(Texto_Fuente& fuente, Informe_Lectura& informe);
Secciones Clip_Filas(Texto_Fuente& fuente, Informe_Lectura& informe);

/// QSV: "station offset height [code]", blank separated.
Secciones Qsv(Texto_Fuente& fuente, Informe_Lectura& informe);

/// ISTRAM and HTRAZADO: a line with the word PK and a number opens a section that lasts until the
/// next; where none is open "station count" opens one of so many rows. Rows "offset height [code]".
Secciones Por_PK(Texto_Fuente& fuente, Informe_Lectura& informe);

/// MXROAD: a line with CHAINAGE and a number opens a section. Rows "label offset level".
Secciones Mxroad(Texto_Fuente& fuente, Informe_Lectura& informe);

} // namespace Lectores_Secciones
