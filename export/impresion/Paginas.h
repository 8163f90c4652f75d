#pragma once

#include "export/impresion/Lector_RTF.h"

/// Paper with its margins, in points.
struct Papel {
    double ancho = 595, alto = 842; ///< A4
    double margen = 30;

    /// A4, upright or on its side.
    static Papel A4(bool apaisado);
    double Util() const { return ancho - 2 * margen; }
};

/// A line of a page, its stretches one behind the other from `x` on.
struct Renglon_Pagina {
    double x = 0, y = 0; ///< left end and upper edge, points from the paper's corner
    double alto = 0;
    QList<Tramo_RTF> tramos;
};
using Pagina = QList<Renglon_Pagina>;

/// Width of a character of the fixed-pitch font, and height of a line, in parts of its size.
inline constexpr double ANCHO_LETRA = 0.6, ALTO_RENGLON = 1.15;

/// Breaks a document into pages: between lines, a line wider than the paper going on in the next.
/// The first underlined paragraph holds the titles of the columns: further pages repeat it on top.
/// A document without text has one page, empty.
QList<Pagina> Cortar_Paginas(const QList<Parrafo_RTF>& documento, const Papel& papel);
