#pragma once

#include "conversions/suelo/Texto_Fuente.h"

#include <array>
#include <optional>
#include <QHash>
#include <QStringList>
#include <vector>

/// Robotic monitoring: the readings of a station that measures the same points again and again, and
/// how far each has moved from its reference coordinates.
namespace Monitorizacion {

/// x = east, y = north, z = height, metres.
using Coordenadas = std::array<double, 3>;

/// What the readings say of the campaign; empty where they don't.
struct Cabecera {
    QString temperatura;
    QString fecha; ///< of its own record, else of the first epoch
    QString hora;
};

/// The positions of one point in one epoch, averaged.
struct Medida {
    QString punto;
    QString epoca, fecha, hora; ///< before the first epoch record: "1", without date and time
    Coordenadas media{};
    int cuantas = 0; ///< readings in the average
};

/// In the order of the first reading of each.
using Medidas = std::vector<Medida>;

using Referencias = QHash<QString, Coordenadas>;

/// Texts that the user gives for the heading.
struct Textos {
    QString trabajo, descripcion, operario, temperatura, fecha, hora;
};

/// Reads a coordinates file: "name x y z [code]", separated by ";" or "," if the line has one, else
/// by blanks. Lines that can't be read are left out; of a repeated name the last line holds.
/// @throws Fallo_Conversion when there is no coordinate
Referencias Leer_Coordenadas(Texto_Fuente& fuente, Informe_Lectura& informe);

/// Reads what the readings file says of itself.
Cabecera Leer_Cabecera(Texto_Fuente& fuente);

/// Reads the readings file and computes the positions: records JOB, TMP, FEC, HOR, CIC (epoch),
/// STN, XYZ, BKB, SS, FS, SD; angles in gon, distances in metres. A zenith angle above 200 is the
/// second face. Readings whose station or point isn't known, or that can't be read, are left out.
/// @throws Fallo_Conversion when no reading is left
Medidas Leer_Lecturas(Texto_Fuente& fuente, const Referencias& referencias,
                      Informe_Lectura& informe);

/// Three lines: temperature, date, time.
QByteArray Escribir_Cabecera(const Cabecera& cabecera);

/// The results, separated by ";", metres with four decimals; a point without reference leaves its
/// reference and difference columns empty, an epoch without date and time takes those of the
/// heading.
QByteArray Escribir_Resultados(const Medidas& medidas, const Referencias& referencias,
                               const Textos& textos);

} // namespace Monitorizacion
