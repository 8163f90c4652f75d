#pragma once

#include "transfer/enlace/Recepcion.h"

#include <QDateTime>
#include <QList>
#include <QString>

/// A reception that was left behind.
struct Rescate {
    QString fichero; ///< path
    QString maquina; ///< family key, from the name
    int operacion = 0;
    QDateTime momento;
    qint64 bytes = 0;
};

/// Receptions left under LOG, oldest first; a file whose name tells nothing has an empty family.
QList<Rescate> Rescates();

/// Plays the bytes of a journal through a receiver of the family; a download under way notices
/// nothing.
/// @param maquina  family key
/// @return the reception buffer: what was accepted, without the record or line that the end of the
///         journal cut short (unless the instrument had ended the transmission)
/// @throws Error_Ejecucion when the file can't be read
QString Leer_Diario(const QString& fichero, const QString& maquina);

/// Makes a session of a journal by the processing of a download that ended, and removes the journal
/// once the session is on the disk.
/// @param datos  name, operation, family and model; the buffer is read from the journal
/// @throws Error_Ejecucion 62 when the journal holds no complete record
Resultado_Recepcion Rescatar(const QString& fichero, Datos_Recepcion datos);
