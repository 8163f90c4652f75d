#pragma once

#include "export/excel/Escritor_Estilos.h"
#include "export/excel/Salida_Biff.h"
#include "export/excel/Tabla_Cadenas.h"

#include <optional>
#include <vector>

/// Places in a sheet's part of the stream that its INDEX names.
struct Indice_Hoja {
    Rango usado;
    qsizetype ancho_columnas = 0;   ///< of DEFCOLWIDTH
    std::vector<qsizetype> bloques; ///< of each DBCELL
    bool posible = true;            ///< false when a row is longer than a DBCELL can tell
};

/// Writes the records of one sheet, part by part: a plain sheet and a sheet of a book put them in
/// different surroundings.
class Escritor_Hoja {
public:
    /// @param cadenas  table of shared texts; used by the Unicode form only
    Escritor_Hoja(const Hoja_Excel& hoja, const Forma_Excel& forma, const Estilos_Libro& estilos,
                  Tabla_Cadenas& cadenas, Salida_Biff& salida);

    /// Calculation and page settings, column widths.
    void Escribir_Ajustes();
    /// Range in use and all cells, in blocks of rows.
    void Escribir_Celdas();
    /// How the sheet's window looks. @param elegida  the sheet is the one in front
    void Escribir_Vista(bool elegida);

    const Indice_Hoja& Indice() const { return indice; }

private:
    void Escribir_Dimensiones();
    void Escribir_Filas(int desde, int hasta);
    void Escribir_Fila(const std::vector<Celda_Situada>& celdas, int fila);
    void Escribir_Bloque(qsizetype primera_fila, const std::vector<qsizetype>& inicios);
    void Escribir_Texto(const Biff::Lugar_Celda& lugar, const QString& texto);
    std::size_t Escribir_Vacias(const std::vector<Celda_Situada>& celdas, std::size_t primera,
                                int fila);

    const Hoja_Excel& hoja;
    const Forma_Excel& forma;
    const Estilos_Libro& estilos;
    Tabla_Cadenas& cadenas;
    Salida_Biff& salida;
    Indice_Hoja indice;
};
