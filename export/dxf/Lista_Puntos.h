#pragma once

#include "export/Datos_Formateados.h"

#include <functional>
#include <QByteArray>
#include <QList>

/// A text list of points: the first line that isn't empty holds the titles, as the text export
/// writes it, each further line a point.
struct Lista_Puntos {
    Datos_Formateados datos;
    /// Numbers, from 1, of the lines left out because they have fewer cells than there are titles.
    QList<int> lineas_cortas;
};

/// Asked for the separator when none fits the titles. @return nothing when the user cancelled
using Pedir_Separador_Lista = std::function<std::optional<QChar>()>;

/// Reads a list in the page of the files, or in UTF-8. The separator is the one that splits the
/// titles into the known fields of a point, tried in the order tab, comma, runs of blanks; between
/// blanks known names are matched one after another, the longest first, and any other word is a
/// title of its own. Behind the last title a line's further words belong to its last cell.
/// @param conocidos  field names with blanks that titles may hold besides those of a point
/// @param separador  the one to take, whatever the titles look like; nothing: looked for
/// @return nothing when the question was cancelled
/// @throws Error_Ejecucion 13 for what is no text, 62 for a text without any line, 3265 when the
///         titles, whose line it names, lack a coordinate
std::optional<Lista_Puntos> Leer_Lista_Puntos(const QByteArray& bytes, const QStringList& conocidos,
                                              std::optional<QChar> separador,
                                              const Pedir_Separador_Lista& preguntar);
