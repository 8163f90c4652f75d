#pragma once

#include "conversions/rasantes/Modelo_Rasante.h"
#include "conversions/suelo/Texto_Fuente.h"

/// Readers of gradients, one a source. Each reads the first gradient of the text; what it can't
/// take as written goes to `informe`.
/// @throws Fallo_Conversion when there is no usable gradient

/// CLIP ALZ: "station,elevation C or slope P,curve R, T or F", by plain geometry.
Rasante Leer_Rasante_Alz(Texto_Fuente& fuente, Informe_Lectura& informe);
/// ISTRAM: listing "Estado de rasantes".
Rasante Leer_Rasante_Istram(Texto_Fuente& fuente, Informe_Lectura& informe);
/// The one or the other by content: both come to the same function.
Rasante Leer_Rasante_Istram_O_Alz(Texto_Fuente& fuente, Informe_Lectura& informe);
/// QSV: "PK COTA KV".
Rasante Leer_Rasante_Qsv(Texto_Fuente& fuente, Informe_Lectura& informe);
