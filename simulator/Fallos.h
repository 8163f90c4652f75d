#pragma once

#include <optional>
#include <QMap>
#include <QString>

namespace simulador {

/// What an instrument or its cable does wrong on request. Frames (or the level's lines) count
/// from 1.
struct Fallos {
    QMap<int, int> sumas;        ///< frame -> how many times it goes out with a bad checksum
    QMap<int, int> rechazos;     ///< block of an upload -> how many times it is refused
    std::optional<int> silencio; ///< last frame that goes out; 0: no answer at all
    std::optional<int> fin;      ///< the data ends behind this frame, with a good end
    std::optional<int> eot;      ///< frame in whose middle the end of transmission stands
    std::optional<int> ruido;    ///< frame ahead of which noise goes out; 0: ahead of each
    std::optional<qint64> corte; ///< bytes, sent or received, after which the cable is cut
    int trozo = 0;               ///< bytes of a write; 0: as they come
};

/// Reads one fault as the command line names it ("suma:3", "suma:3x2", "corte:500", ...) into
/// `fallos`.
/// @return an empty text, or what is wrong with it, in Spanish
QString Leer_Fallo(const QString& texto, Fallos& fallos);

/// Help lines that tell every fault.
QString Ayuda_Fallos();

} // namespace simulador
