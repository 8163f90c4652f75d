#pragma once

#include <QString>

/// Place of a window in pixels; `estado` 0 normal, 1 minimised, 2 maximised.
struct Posicion_Ventana {
    int estado = 0;
    int top = 0, left = 0, width = 0, height = 0;
};

/// Reads a window's section of a position file. `modo` 0 touches only the state, 1 adds top and
/// left, 2 adds height and width; places are read only when the state read is normal, and a key
/// that is missing leaves its value. A value that is no 16-bit number shows the read failure box
/// and ends the reading there.
void Leer_Posicion(Posicion_Ventana& ventana, const QString& fichero, const QString& seccion,
                   int modo);
/// Writes it: the state always, the place only of a normal window. Only the last write decides on
/// the failure box.
void Guardar_Posicion(const Posicion_Ventana& ventana, const QString& fichero,
                      const QString& seccion, int modo);

/// Path of Posicion.ini.
QString Fichero_Posicion();
