#pragma once

// The form: docs/formas/ficheros-brutos.md

#include "conversions/suelo/Texto_Fuente.h"

#include <QList>
#include <QStringList>

/// BronexCOD: the observations of a session as the program writes them out, eight cells a line, and
/// the fixed columns that Bronex reads.
struct Observaciones_Bronex {
    QString nombre; ///< of the file
    /// Eight cells each: station, point, horizontal angle, vertical angle, distance, target height,
    /// instrument height, code.
    QList<QStringList> filas;
};

/// Reads the lines. Their separator is the first of tab, ";" and "," that stands seven times or
/// more in the first line, else runs of blanks. "qtr" fills cells that are to be empty. Lines
/// without eight cells are left out.
/// @throws Fallo_Conversion when none is left
Observaciones_Bronex Leer_Bronex(Texto_Fuente& fuente, Informe_Lectura& informe);

/// Right-aligned columns with a blank between, five of 10 characters and two of 8; then the code
/// unless it is empty. Longer texts are not cut.
QByteArray Escribir_Bronex(const Observaciones_Bronex& observaciones, const QString& destino);
