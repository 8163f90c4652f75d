#pragma once

#include "rawfiles/estaciones/Disposicion.h"

/// The cells that the Bronex layouts share: station, point, horizontal angle, vertical angle,
/// distance, target height, instrument height.
class Lector_Bronex : public Lector_Disposicion {
public:
    Lector_Bronex() { celdas.resize(7); }
    bool Tomar(const Registro_Serie_B& registro) override;
};

/// The report of a failure in both.
QString Fallo_Bronex();

/// "*.top": station, point, horizontal angle, vertical angle, distance, target height, instrument
/// height of each observation, each value staying until the next comes.
/// @return as `Exportar_Disposicion`
bool Exportar_Bronex(qint64 id, const QString& ruta);
