#pragma once

#include "conversions/ejes/Modelo_Eje.h"
#include "conversions/rasantes/Modelo_Rasante.h"
#include "conversions/secciones/Modelo_Secciones.h"
#include "core/Reloj.h"

#include <QByteArray>

/// LandXML 1.2 files: UTF-8, CR LF, metres with 4 decimals, points as "north east". The frame is
/// fixed, so that files compare line by line; `momento` is all that differs from run to run.
/// The model's `nombre` becomes the alignment's name. Drawn in docs/formas/landxml.md.

QByteArray Escribir_LandXML(const Eje& eje, const QDateTime& momento);
QByteArray Escribir_LandXML(const Rasante& rasante, const QDateTime& momento);
/// A section of one point is left out: the schema wants two.
/// @throws Fallo_Conversion when no section is left
QByteArray Escribir_LandXML(const Secciones& secciones, const QDateTime& momento);

/// The same, now: the writer of the functions that convert to LandXML.
template <class Modelo> QByteArray Escribir_LandXML_Ahora(const Modelo& modelo, const QString&)
{
    return Escribir_LandXML(modelo, Reloj_Actual().Ahora());
}
