#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// What is wrong with a row of the delivered tables.
struct Falta {
    QString fichero; ///< name of the table's file, without folder
    int linea = 0;   ///< line of the file from 1, 0 when the fault is the whole file's
    QString motivo;  ///< Spanish

    /// "Campos.csv:12: motivo", the form that editors jump to.
    QString Texto() const;
};

/// A row of a table's file; `linea` is where it begins, counted from 1.
struct Fila {
    int linea = 0;
    QStringList celdas;
};

/// Cuts a text of comma-separated rows (RFC 4180: quotes around cells, doubled quotes inside them).
/// Empty lines are skipped; lines end in LF or CR LF.
/// @param bytes    UTF-8, with or without its mark
/// @param fichero  name that the faults bear
/// @param faltas   takes a fault for bytes that are no UTF-8, an open quote, text behind a closing
///                 quote; what was cut until then is returned
QList<Fila> Cortar_Csv(const QByteArray& bytes, const QString& fichero, QList<Falta>& faltas);
