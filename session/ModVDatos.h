#pragma once

#include "session/Consultas_Sesion.h"

#include <QStringList>

/// One record, decoded, as `FrmEditar` shows it.
struct Vista_Registro {
    QString punto;
    QStringList nombres, valores; ///< of one length; what the line doesn't hold is empty
    /// The buttons that walk to the next and the previous record are enabled: not for sessions that
    /// have no sequence of points.
    bool con_botones = true;
};

/// Decodes one line for the viewer, without offsets: they read "0" afterwards.
/// @return nothing when the line is of a kind without listed fields: the viewer then stays silent
std::optional<Vista_Registro> Ver_Registro(const QString& maquina, int ope, const QString& descr,
                                           const QString& datos, const QString& punto);

/// Lines of a two-column grid; an empty value shows as "--".
QList<Linea_Rejilla> Llenar_Rejilla(const QStringList& nombres, const QStringList& valores);

/// Moves to the next (1) or previous (-1) row of the viewer's data; at their end it says so and
/// stays.
/// @return true when it moved
bool Mover_Registro(Conjunto_Registros& datos, int paso);
