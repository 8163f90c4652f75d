#pragma once

#include "transfer/enlace/Recepcion.h"

#include <QDateTime>
#include <QList>
#include <QString>

/// A reception that was left behind.
struct Rescate {
    QString fichero; ///< path
    QString maquina; ///< family key, from the name; empty when that tells nothing
    int operacion = 0;
    QDateTime momento;
    qint64 bytes = 0;
    bool en_curso = false; ///< a download, of this program or another, is writing it
};

/// Receptions left under LOG, oldest first. Those that were made sessions more than thirty days ago
/// are swept.
QList<Rescate> Rescates();
/// What name and file tell of one journal, wherever it lies.
Rescate Leer_Rescate(const QString& fichero);

/// What a journal holds.
struct Contenido_Diario {
    QString buffer;          ///< all that was accepted, as data that a session is made of
    Faltas_Recepcion faltas; ///< what came and is not in it
    qint64 registros = 0;    ///< records or lines of the buffer
    QString falta;           ///< `faltas` in plain words
};
/// Plays the bytes of a journal through a receiver of the family; a download under way notices
/// nothing.
/// @param maquina  family key; with one that no family has all is empty
/// @throws Error_Ejecucion when the file can't be read
Contenido_Diario Leer_Contenido(const QString& fichero, const QString& maquina);
/// The buffer alone.
QString Leer_Diario(const QString& fichero, const QString& maquina);

/// Makes a session of a journal by the processing of a download that ended, under the family and
/// operation of its name. Once the session is on the disk a journal of LOG is renamed, to be swept
/// after thirty days; one that lies elsewhere is only read. When a killed program has left the
/// beginning of the same reception as a session, the user is asked whether that one goes.
/// @param datos  name, operation, family and model; the buffer is read from the journal
/// @param forzar  another operation than the name's, and a journal that is a session already, too
/// @throws Error_Ejecucion 62 when the journal holds no complete record, 70 when its download is
///         running, 5 when it belongs to another family or operation or is a session already
Resultado_Recepcion Rescatar(const QString& fichero, Datos_Recepcion datos, bool forzar = false);

/// Removes a journal for good. @throws Error_Ejecucion 70 when its download is running or it can't
/// be removed
void Quitar_Diario(const QString& fichero);
