#pragma once

#include "core/Error_Ejecucion.h"

#include <optional>
#include <QString>
#include <QStringList>

/// A reception as it ends: the family and model are those it began with.
struct Datos_Recepcion {
    QString buffer;
    QString nombre; ///< session name
    int operacion = 0;
    int destino = 0; ///< of a code library: 0 database, 1 text file
    QString maquina; ///< family key
    QString maqdes;  ///< model name
};

/// What came over the wire and stands in no session, counted. Each of them keeps the journal.
struct Faltas_Recepcion {
    int rechazadas = 0;        ///< frames or lines refused and not repeated
    int abiertas = 0;          ///< frame or line open at the end
    int desconocidas = 0;      ///< records of a kind that the operation doesn't know
    int sueltas = 0;           ///< general records and points that no stored record carries
    qsizetype sin_fin = 0;     ///< bytes behind the last CR LF
    int cortadas = 0;          ///< records or names cut to their column
    qint64 sin_sesion = 0;     ///< rows without a session
    bool sin_acabar = false;   ///< the instrument never ended its data
    bool interrumpida = false; ///< the user cancelled the storing

    bool Ninguna() const;
    Faltas_Recepcion& operator+=(const Faltas_Recepcion& otras);
};

/// The counts that aren't 0, in plain words: "3 tramas rechazadas y no repetidas, 1 registro
/// desconocido"; empty without any.
/// @param unidad  what the family's wire is made of: "trama", "línea" (a feminine noun)
QString Frase_Faltas(const Faltas_Recepcion& faltas, const QString& unidad);

/// What becomes of a finished reception.
struct Resultado_Recepcion {
    bool guardada = false; ///< the storing went to its end
    QStringList sesiones;  ///< numbers of the sessions made, in order
    qint64 filas = 0;      ///< rows stored in them
    Faltas_Recepcion faltas;
    std::optional<Error_Ejecucion> error; ///< why it could not be stored

    /// All that was received is stored: its journal may go.
    bool Completa() const { return guardada && !error && faltas.Ninguna(); }
};
