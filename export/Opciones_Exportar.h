#pragma once

#include "formats/Opciones_Nivel.h"

#include <QString>

/// What the user chose for an output.
struct Opciones_Exportar {
    QString texto = {};         ///< pieces joined with code 6, of the forms below
    bool numeros = false;       ///< a workbook's cell that is wholly a number is written as one
    bool observaciones = false; ///< only rows whose own record is a measurement
    Opciones_Nivel nivel = {};
};

/// The text of the options of the text kinds: the separator, and "S" or "N" for titles.
struct Opciones_Texto {
    QString separador;
    bool titulos = false;

    QString Unir() const;
    /// Reads it; what isn't "S" wants no titles.
    static Opciones_Texto De(const QString& texto);
};

/// The same of a workbook: "S" or "N" for titles, and the version's connect string ("Excel 8.0").
struct Opciones_Libro {
    bool titulos = false;
    QString conexion;

    QString Unir() const;
    static Opciones_Libro De(const QString& texto);
};
