#pragma once

#include "conversions/ejes/Modelo_Eje.h"
#include "conversions/rasantes/Modelo_Rasante.h"

#include <QByteArray>

/// The instrument's forms: Windows-1252, CR LF behind every line; metres with 3 decimals, azimuths
/// in gon with 4. Drawn in docs/formas/disenos.md.

/// Horizontal alignment ".ssh", the record lines of operation 6: INI station x y; REC azimuth
/// length; CIR azimuth length radius; CLO azimuth length A radius-at-start radius-at-end; FIN
/// station x y azimuth. Right-hand radii are positive, 0.000 is infinite.
QByteArray Escribir_Ssh(const Eje& eje);

/// The same for the series 640/6000, ".hal": a line per singular point, "kind,station,x,y,azimuth,
/// length,radius at start,radius at end,A"; the end has kind 9.
QByteArray Escribir_Hal(const Eje& eje);

/// The form that the target's name calls for: ".hal" in any case, else ".ssh".
QByteArray Escribir_Eje_Instrumento(const Eje& eje, const QString& destino);

/// Vertical alignment ".ssv": "station,elevation,curve length", a vertex a line.
QByteArray Escribir_Rasante_Instrumento(const Rasante& rasante, const QString& destino);
