#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace simulador {

/// A field book: what the instrument has in its memory, as a plain text file, one record a line.
/// Lines that begin with "#" are comments and empty lines are skipped; "\#" stands for a record
/// that begins with "#". Blanks at either end belong to the record.
struct Libreta {
    QList<QByteArray> registros; ///< in the single-byte page of the wire (Windows-1252)
    QString motivo;              ///< why the file could not be read, in Spanish; empty when it was
};

/// Reads a field book in UTF-8 (with or without its mark) or, if it is not UTF-8, in Windows-1252.
Libreta Leer_Libreta(const QString& fichero);
/// The same of a text in memory.
Libreta Cortar_Libreta(const QByteArray& texto);

/// The records as the text of a field book, in UTF-8: `Cortar_Libreta` gives them back.
QByteArray Texto_Libreta(const QList<QByteArray>& registros);

} // namespace simulador
