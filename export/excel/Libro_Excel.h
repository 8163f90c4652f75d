#pragma once

// The form: docs/formas/libros.md

#include "export/excel/Forma_Excel.h"

#include <QString>

#include <deque>
#include <map>
#include <optional>
#include <vector>

/// A cell: text, number or nothing, and how it is shown. A cell without a value may still be there
/// for its looks.
struct Celda {
    enum class Tipo : quint8 { Nada, Texto, Numero };

    QString texto;
    double numero = 0;
    Tipo tipo = Tipo::Nada;
    bool negrita = false;
    bool como_texto = false; ///< what is typed into it stays text, also digits
    /// A number shows so many decimals, 0 to `MAX_DECIMALES`; -1: as many as it has.
    qint8 decimales = -1;

    static constexpr int MAX_DECIMALES = 30;

    static Celda De(const QString& texto);
    static Celda De(double numero);

    bool operator==(const Celda&) const = default;
};

/// A cell and its zero-based column.
struct Celda_Situada : Celda {
    quint16 columna = 0;
};

/// Zero-based rows and columns, both ends included. Without a cell: the ends lie before the starts.
struct Rango {
    int fila = 0, columna = 0, fila_hasta = -1, columna_hasta = -1;

    bool Vacio() const { return fila_hasta < fila || columna_hasta < columna; }
    /// Smallest range that holds both.
    Rango Unido(const Rango& otro) const;
    bool operator==(const Rango&) const = default;
};

/// A sheet: a grid in which only the cells that were set take room. Rows and columns count from 0
/// and reach as far as the widest form does; a form's own limits are tested when the book is
/// written.
class Hoja_Excel {
public:
    static constexpr int MAX_FILAS = 65536;
    static constexpr int MAX_COLUMNAS = 256;

    explicit Hoja_Excel(const QString& n) : nombre(n) {}

    /// Sets the value of a cell; its looks stay.
    /// @throws Error_Ejecucion 3437 for a row, 3190 for a column beyond the sheet;
    ///         5 for a number that isn't finite
    void Poner(int fila, int columna, const QString& texto);
    void Poner(int fila, int columna, double numero);
    /// Sets value and looks; a cell without a value still counts as used.
    void Poner(int fila, int columna, const Celda& celda);

    /// Makes the cells of a range, set or not, bold. @throws as Poner
    void Poner_Negrita(const Rango& rango);
    /// Prepares the cells of a range for text. @throws as Poner
    void Poner_Como_Texto(const Rango& rango);

    /// Width of a column in characters of the normal font. @throws as Poner, 5 for a width outside
    /// 0 to 255
    void Poner_Ancho(int columna, double caracteres);
    const std::map<int, double>& Anchos() const { return anchos; }

    /// Takes the cells of a range away, values and looks. @throws as Poner
    void Quitar(const Rango& rango);

    /// The only part of the sheet that is printed; without one, all of it.
    void Poner_Area_Impresion(const Rango& rango) { area_impresion = rango; }
    const std::optional<Rango>& Area_Impresion() const { return area_impresion; }

    /// @return the cell, or an empty one where none is set
    const Celda& Leer(int fila, int columna) const;

    /// The cells of a row by ascending column; none for a row beyond the last.
    const std::vector<Celda_Situada>& Fila(int fila) const;

    /// Counts a range as used though no cell of it is set, as whole rows with looks of their own
    /// are. What of it lies beyond the sheet is left out.
    void Ampliar_Uso(const Rango& rango);

    /// Smallest range that holds every cell set and what else counts as used.
    Rango Rango_Usado() const;
    /// Smallest range from the first row and column on that holds every cell with a value.
    Rango Rango_Con_Valores() const;

    QString nombre;

private:
    Celda& En(int fila, int columna);
    Rango Abarcar(int fila, int columna, bool (*cuenta)(const Celda&)) const;

    std::vector<std::vector<Celda_Situada>> filas;
    std::map<int, double> anchos;
    Rango uso_ampliado;
    std::optional<Rango> area_impresion;
};

/// A workbook in memory.
class Libro_Excel {
public:
    Libro_Excel() = default;
    /// A book of sheets that were read; their names are not examined.
    explicit Libro_Excel(std::deque<Hoja_Excel> leidas) : hojas(std::move(leidas)) {}

    /// @return the new last sheet; it stays where it is when others are added
    /// @throws Error_Ejecucion 3125 for a name that Excel refuses, 3010 for one in use
    Hoja_Excel& Agregar_Hoja(const QString& nombre);

    int Numero_Hojas() const { return int(hojas.size()); }
    /// @param indice  from 0. @throws Error_Ejecucion 9 when there is no such sheet
    Hoja_Excel& Hoja(int indice);
    const Hoja_Excel& Hoja(int indice) const;
    /// Sheet of a name, whatever its capitals. @throws Error_Ejecucion 3011 when there is none
    Hoja_Excel& Hoja(const QString& nombre);

    /// Tests that the form can hold the book: number and names of the sheets, rows, columns,
    /// characters a cell. Nothing is ever cut to fit.
    /// @throws Error_Ejecucion 3251, 3125, 3010, 3437, 3190 or 3163, naming sheet and cell
    void Comprobar(const Forma_Excel& forma) const;

private:
    std::deque<Hoja_Excel> hojas;
};

/// Excel's rules for the name of a sheet: 1 to 31 characters, none of : \ / ? * [ ] nor a control
/// character, no apostrophe at either end.
/// @return true when `nombre` keeps them
bool Nombre_Hoja_Valido(QStringView nombre);
