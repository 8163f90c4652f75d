#pragma once

#include "formats/Campo_Nivel.h"

#include <functional>
#include <QComboBox>

/// `CbEstructura`, the choice of the half that a level format's dialog shows.
QComboBox* Hacer_Estructura(const std::function<void(Mitad_Nivel)>& al_elegir);
