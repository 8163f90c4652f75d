#pragma once

#include <QString>
#include <QStringList>

/// A reception as it ends: the family and model are those it began with.
struct Datos_Recepcion {
    QString buffer;
    QString nombre; ///< session name
    int operacion = 0;
    int destino = 0;        ///< of a code library: 0 database, 1 text file
    QString maquina;        ///< family key
    QString maqdes;         ///< model name
    bool rescatada = false; ///< from a journal: the level's staged rows of its failed storing go
    bool cortada = false;   ///< and the journal breaks off: the level's open job is a session too
};

/// What becomes of a finished reception.
struct Resultado_Recepcion {
    bool completa = false; ///< all that was received is stored: its journal may go
    QStringList sesiones;  ///< numbers of the sessions made, in order
};
