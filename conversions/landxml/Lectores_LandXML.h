#pragma once

#include "conversions/ejes/Modelo_Eje.h"
#include "conversions/rasantes/Modelo_Rasante.h"
#include "conversions/secciones/Modelo_Secciones.h"
#include "conversions/suelo/Informe_Lectura.h"

#include <QIODevice>
#include <QStringList>

/// What a LandXML file holds and how it is read. Lengths, coordinates and stations come in the
/// file's unit and leave in metres; points are "north east". Directions and angles are never read:
/// practice and schema disagree on their sense, the points do not. Drawn in docs/formas/landxml.md.
///
/// Every routine reads the file whole and throws Fallo_Conversion when it isn't well-formed
/// LandXML.

/// Names of the alignments that have a CoordGeom, in document order.
QStringList Listar_Ejes_LandXML(QIODevice& dispositivo);
/// A text per ProfAlign: the alignment's name; "alignment/profile" if the alignment has several.
QStringList Listar_Rasantes_LandXML(QIODevice& dispositivo);
/// "alignment:surface", each pair once; a ":" inside a name is written ".".
QStringList Listar_Secciones_LandXML(QIODevice& dispositivo);

/// @param indice  of the list of axes, from 0
/// @throws Fallo_Conversion when it is out of range or the axis has no element
Eje Leer_Eje_LandXML(QIODevice& dispositivo, int indice, Informe_Lectura& informe);
/// @param eleccion  a text of the list of gradients; the first equal one counts
/// @throws Fallo_Conversion when there is none or it has fewer than two vertices
Rasante Leer_Rasante_LandXML(QIODevice& dispositivo, const QString& eleccion,
                             Informe_Lectura& informe);
/// @param alineacion,superficie  the two parts of a text of the list of sections
/// @throws Fallo_Conversion when there is none, or a number can't be read: a silently missing point
///         is worse than no section
Secciones Leer_Secciones_LandXML(QIODevice& dispositivo, const QString& alineacion,
                                 const QString& superficie, Informe_Lectura& informe);

/// A choice as the list file holds it: Windows-1252 with "?" for what the page can't hold, one
/// line. Two names are the same choice when these are equal.
QByteArray Como_En_Lista(const QString& texto);
