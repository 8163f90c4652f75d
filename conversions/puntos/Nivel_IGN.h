#pragma once

// The form: docs/formas/ficheros-brutos.md

#include "conversions/suelo/Texto_Fuente.h"

#include <optional>
#include <QStringList>
#include <vector>

/// The level's measurements as a levelling book of the IGN: one line a set-up of the instrument.
namespace Nivel_IGN {

/// One sight to a staff.
struct Visual {
    double lectura = 0;   ///< metres
    double distancia = 0; ///< metres
    QString punto;
};

/// A set-up: the staff behind and the one in front, read once or twice.
struct Estacion {
    Visual espalda, frente;                  ///< first readings
    std::optional<Visual> espalda2, frente2; ///< second ones, both or none
};

struct Itinerario {
    QString nombre;                    ///< of the job
    QString fecha;                     ///< "dd/mm/yy hh:mm", empty when the session has none
    std::optional<double> cota_salida; ///< of the first start point that has one, metres
    std::vector<Estacion> estaciones;
    bool dobles = false; ///< staffs are read twice
};

/// Reads a session's stored lines: "b" job and start height, "g"/"h" first and second reading
/// behind, "i"/"j" in front, "w"/"v" date. When any second reading stands in the session a set-up
/// needs all four; a reading repeated before that replaces the earlier one, and an unfinished
/// set-up is left out.
/// @throws Fallo_Conversion when there is no complete set-up, a reading can't be read, or the unit
///         isn't metric (the form can't hold feet)
Itinerario Leer(Texto_Fuente& fuente, Informe_Lectura& informe);

/// The form.
/// @param datos  serial number, staff 1, staff 2, operator, company
QByteArray Escribir(const Itinerario& itinerario, const QStringList& datos);

} // namespace Nivel_IGN
