#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// A field that a level format has chosen.
struct Campo_De_Informe {
    QString nombre;
    int numero = -1; ///< of its value in a line, 0 the type letter; -1: no line has it
    int digitos = 0; ///< width of its column in the report
};

/// A session of the level, whole, and the two halves of a format.
struct Datos_Nivel {
    QStringList lineas; ///< in their sequence
    std::vector<Campo_De_Informe> cabecera, detalle;

    /// @param registro  line, from 0
    /// @param numero  0: the type letter; 1 to 28: that field as the user reads it; any other: empty
    QString Celda(qsizetype registro, int numero) const;
    /// Type letter of a line; a null character for an empty one.
    QChar Tipo(qsizetype registro) const;
    /// A chosen field of a line: "Fecha" and "Hora" in their written form, any other as `Celda`.
    QString Valor(qsizetype registro, const Campo_De_Informe& campo) const;
};

/// @return true for the letters of the lines that hold a measurement: they carry the fields that
///         the user has chosen for the detail
bool Es_Medicion_Nivel(QChar tipo);

/// "ddmmyy" as "dd/mm/yy", "hhmm" as "hh:mm"; a value of other characters or length stays.
QString Fecha_De_Nivel(const QString& valor);
QString Hora_De_Nivel(const QString& valor);
