#pragma once

#include "export/Avance_Exportar.h"
#include "export/nivel/Datos_Nivel.h"
#include "formats/Opciones_Nivel.h"

#include <functional>

/// The report of a levelling run, line by line, whatever it is shown on: the head of the job, the
/// user's columns of each measurement, and the lines of rings, change points and the end, which
/// have columns of their own.

/// How a cell stands in its column where columns have widths.
enum class Lado { Izquierda, Derecha };

/// A cell of a line. Its text is whole; an output that has widths cuts and fills it.
struct Celda_Informe {
    QString texto;
    int ancho = 0; ///< of its column, in characters; 0: the text fills it as it stands
    Lado lado = Lado::Derecha;

    /// The text in the width of its column: a longer one loses characters at the side where the
    /// blanks of a shorter one would stand.
    QString En_Su_Ancho() const;
};

/// A line.
struct Linea_Informe {
    enum class Clase {
        Blanco,
        Titulos_Cabecera,
        Cabecera,
        Titulos_Detalle,
        Detalle,
        Titulos_Anillo,
        Anillo,
        Titulos_Cambio,
        Cambio,
        Titulos_Fin, ///< one cell, the words of the end; outputs name the columns themselves
        Fin          ///< date, time, comment
    };
    Clase clase = Clase::Blanco;
    QList<Celda_Informe> celdas;
};

/// Makes the lines one after the other.
/// @param titulos  with the titles of head and detail; those of the other lines are always there
/// @param opciones  which lines are wanted. Deliberate: `anillo` opens the change points, and
///                  `nivelacion` the rings
void Hacer_Informe(const Datos_Nivel& datos, bool titulos, const Opciones_Nivel& opciones,
                   Avance_Exportar& avance, const std::function<void(const Linea_Informe&)>& linea);
