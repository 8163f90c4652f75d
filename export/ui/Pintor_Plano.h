#pragma once

#include "export/plano/Vista_Plano.h"

#include <QColor>

class QPainter;

/// How a plan is drawn on one kind of paper.
struct Aspecto_Plano {
    QColor fondo;
    double letra = 11; ///< height of a label, units of the view
    double marca = 3;  ///< half of a point's cross
    double trazo = 1;  ///< width of lines
};
/// On the screen, and on paper in points.
Aspecto_Plano Aspecto_Pantalla();
Aspecto_Plano Aspecto_Papel();
/// Colour of a colour number on a background: white and black change where they would not show.
QColor Color_Visible(int numero, const QColor& fondo);

/// Draws what the view shows of the visible layers. Labels of one size that would lie on another are
/// left out, so that a crowd of points stays readable and quick.
void Pintar_Plano(QPainter& pintor, const Plano& plano, const Vista_Plano& vista,
                  const Aspecto_Plano& aspecto, double ancho, double alto);

/// A sheet A4 with the plan to scale and its scale below; it lies on its side when the plan does.
struct Hoja_Plano {
    double escala = 0; ///< 1:`escala`
    bool apaisada = false;
};
/// @param escala  wished for; 0: the largest usual one that fits
/// @throws Error_Ejecucion 5 when the plan is empty or doesn't fit at that scale, naming one that
/// does
Hoja_Plano Preparar_Hoja(const Plano& plano, double escala);
/// Draws the sheet. The painter's unit is the point, its origin the paper's corner.
void Pintar_Hoja(QPainter& pintor, const Plano& plano, const Hoja_Plano& hoja);
/// Writes the sheet as a picture (.png), a .pdf or an .svg file, by the end of its name; whole or
/// not at all. @throws Error_Ejecucion 5 for another end, those of `Ficheros::Escribir`
void Guardar_Hoja(const Plano& plano, const Hoja_Plano& hoja, const QString& fichero);
