#pragma once

#include <QString>

class QWidget;

/// Restores the place of a window (or of a child window in the main window's area) from its section
/// of the position file. A window is never left with its title out of reach.
void Leer_Posicion_Ventana(QWidget& marco, const QString& seccion, int modo);
/// Stores it.
void Guardar_Posicion_Ventana(const QWidget& marco, const QString& seccion, int modo);
