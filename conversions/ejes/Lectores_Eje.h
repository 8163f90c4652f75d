#pragma once

#include "conversions/ejes/Modelo_Eje.h"
#include "conversions/suelo/Campos_Fuente.h"
#include "conversions/suelo/Texto_Fuente.h"

/// Readers of horizontal axes, one a source. Each reads the first axis of the text and leaves the
/// rest; what it can't take as written goes to `informe`.
/// @throws Fallo_Conversion when there is no usable axis

/// CLIP: "*PLT", start station, vertices "X,Y,R,A1,A2" of the polygon of tangents.
Eje Leer_Eje_Plt(Texto_Fuente& fuente, Informe_Lectura& informe);
/// QSV and QTR: singular points "PK X Y AZIMUT RADIO PARAMETRO LONGITUD".
Eje Leer_Eje_Qsv(Texto_Fuente& fuente, Informe_Lectura& informe);
/// ISTRAM: listing of the alignments, with or without its page furniture.
Eje Leer_Eje_Istram(Texto_Fuente& fuente, Informe_Lectura& informe);
/// ISPOL: singular points "PK X Y AZIMUT TIPO RADIO LONGITUD".
Eje Leer_Eje_Ispol(Texto_Fuente& fuente, Informe_Lectura& informe);
/// HTRAZADO: keywords, elements chained by their tangents.
Eje Leer_Eje_Htrazado(Texto_Fuente& fuente, Informe_Lectura& informe);
/// MXROAD: GENIO, alignment string of 12 dimensions.
Eje Leer_Eje_Mxroad(Texto_Fuente& fuente, Informe_Lectura& informe);

using Lector_Eje = Eje (*)(Texto_Fuente&, Informe_Lectura&);

/// The reader that the content calls for; null when no line tells. The text is rewound. A file that
/// comes under another package's extension is read as what it is.
Lector_Eje Reconocer_Eje(Texto_Fuente& fuente);

/// Reads an axis by its content, and what no line tells by `PROPIO`.
template <Lector_Eje PROPIO> Eje Leer_Eje(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    const Lector_Eje reconocido = Reconocer_Eje(fuente);
    return (reconocido ? reconocido : PROPIO)(fuente, informe);
}

/// Kind of an element by its type word, in any case, a dot behind allowed: RECTA, R; CURVA, CIRC,
/// C; CLOT, CLOTOIDE, K. Nothing for another word.
std::optional<Clase_Elemento> Clase_De_Palabra(QByteArrayView palabra);

/// Type word of a row of the ISTRAM listing: RECTA, CIRC. or CLOT., in the first field or behind
/// the row's number.
struct Palabra_Istram {
    Clase_Elemento clase;
    qsizetype campo; ///< index of the word among the fields
};
std::optional<Palabra_Istram> Palabra_De_Istram(const Campos_Fuente::Lista& campos);
