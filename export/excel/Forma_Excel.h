#pragma once

// The form: docs/formas/libros.md

#include <QString>

#include <span>

/// The four forms of workbook that the program writes, by the year of the Excel that brought them.
enum class Version_Excel { Excel_3, Excel_4, Excel_5, Excel_8 };

/// What a form is called and what it can hold.
struct Forma_Excel {
    Version_Excel version;
    const char16_t* nombre; ///< its connect string: "Excel 8.0"
    int hojas;              ///< most sheets
    int filas;              ///< most rows a sheet
    int columnas;           ///< most columns a sheet
    int caracteres;         ///< most characters a cell
    bool unicode;           ///< else Windows-1252
    bool compuesto;         ///< named sheets in a compound file; else one nameless sheet, plain
};

/// All forms, oldest first.
std::span<const Forma_Excel> Formas_Excel();

const Forma_Excel& Forma_De(Version_Excel version);

/// The form that a connect string names. @throws Error_Ejecucion 3170 when there is none such
const Forma_Excel& Forma_De(const QString& conexion);
