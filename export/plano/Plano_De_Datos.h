#pragma once

#include "core/jet/Base.h"
#include "export/dxf/Lista_Puntos.h"
#include "export/plano/Plano.h"
#include "session/Consultas_Sesion.h"

/// A plan and what it could not show.
struct Plano_Hecho {
    Plano plano;
    qint64 omitidos = 0; ///< points without coordinates, entities of kinds that aren't drawn
    QList<int> lineas_cortas = {}; ///< of a text list
};

/// The points of a session, without offsets: by their coordinates, or reduced from their station
/// where the session holds its coordinates, orientation and heights and the point's angles and
/// slope distance. Stations are points too, on a layer of their own.
Plano_Hecho Plano_De_Sesion(Base& bd, const Sesion_Elegida& sesion);

/// The points of a text list; heights may be missing. @throws those of `Leer_Lista_Puntos`
std::optional<Plano_Hecho> Plano_De_Lista(const QByteArray& bytes,
                                          const Pedir_Separador_Lista& preguntar);

/// A drawing (its first group's code tells it) or a text list of points.
/// @return nothing when the question for the separator was cancelled
/// @throws Error_Ejecucion those of reading the file and of what it is
std::optional<Plano_Hecho> Plano_De_Fichero(const QString& fichero,
                                            const Pedir_Separador_Lista& preguntar);

/// An angle and a slope distance from a station.
struct Visual {
    double horizontal = 0, vertical = 0; ///< gon; from the zenith
    double distancia = 0;                ///< along the slope, metres
};
/// Place of a sighted point. @param orientacion  what the circle's zero looks at, gon
Lugar_Plano Radiar(Lugar_Plano estacion, double orientacion, const Visual& visual);
