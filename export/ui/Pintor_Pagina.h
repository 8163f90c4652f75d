#pragma once

#include "export/impresion/Dialogo_Imprimir.h"

class QPainter;
class QPagedPaintDevice;

/// The one hand that draws pages: on the screen, on the printer, into a PDF file.

/// Draws a page. The painter's unit is the point, its origin the paper's corner.
void Pintar_Pagina(QPainter& pintor, const Pagina& pagina);

/// Draws all pages on paper, one behind the other.
/// @throws Error_Ejecucion 482 when the device fails
void Pintar_Impreso(QPagedPaintDevice& papel, const Impreso& impreso);

/// Writes a PDF file; it appears whole or what stood there stays.
/// @throws Error_Ejecucion as `Ficheros::Escribir`
void Guardar_PDF(const Impreso& impreso, const QString& fichero);
