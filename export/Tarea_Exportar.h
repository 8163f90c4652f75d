#pragma once

#include "core/jet/Base.h"
#include "export/Avance_Exportar.h"
#include "export/Datos_Formateados.h"
#include "export/Opciones_Exportar.h"

/// A session on its way out: what stage 1 works on.
struct Origen_Exportar {
    Base& bd; ///< the engine's own connection
    qint64 id = 0;
    QString maquina; ///< of the session
    int ope = 0;
    QString formato;    ///< its name, for what reads the format itself
    QStringList campos; ///< names, in the order of the columns
    Opciones_Exportar opciones;
    Avance_Exportar& avance;
};
/// Stage 1: makes rows of a session.
using Etapa_Uno = Datos_Formateados (*)(const Origen_Exportar& origen);

/// What a writer works on.
struct Tarea_Exportar {
    const Origen_Exportar& origen;
    const Datos_Formateados& datos;
    QString fichero;
    /// The level is in force: the names of its fields carry a mark of position behind their text.
    bool campos_con_marca = false;
};
/// Writes a file; traps and reports its errors. @return true when it finished
using Escritor = bool (*)(const Tarea_Exportar& tarea);
