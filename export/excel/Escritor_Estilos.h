#pragma once

#include "export/excel/Libro_Excel.h"
#include "export/excel/Salida_Biff.h"

#include <array>

/// The fonts, number formats, cell looks (XF) and styles of a book: those that every book gets, and
/// one pair of looks, plain and bold, for each number of decimals that its cells show.
class Estilos_Libro {
public:
    explicit Estilos_Libro(const Libro_Excel& libro);

    /// Writes them in the records of the form.
    void Escribir(const Forma_Excel& forma, Salida_Biff& salida) const;

    /// @return the number of the XF that shows a cell's looks
    quint16 Xf_De(const Celda& celda) const;

private:
    void Escribir_Formatos(const Forma_Excel& forma, Salida_Biff& salida) const;

    std::vector<int> decimales; ///< in use, in the order of their looks
    std::array<quint16, Celda::MAX_DECIMALES + 1> lugares{}; ///< in `decimales`, from 1; 0: none
};

/// Number of the XF of cells without looks of their own.
constexpr quint16 XF_NORMAL = 15;
