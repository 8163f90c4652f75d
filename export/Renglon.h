#pragma once

#include "export/Datos_Formateados.h"

#include <span>

/// A line of cells on its way, as the texts and the paper show it: each cell left-aligned in its
/// width and never cut, a separator before every cell but the first.
class Renglon {
public:
    explicit Renglon(const QString& separador) : sep(separador) {}

    /// One more cell, with blanks up to `ancho` characters.
    void Poner(QStringView texto, qsizetype ancho = 0);
    /// The titles' line: the fields' names.
    /// @param anchos  of the columns; empty: no cell is padded
    /// @param con_marca  a name ends where the level's mark of position begins
    void Poner_Titulos(const QStringList& campos, std::span<const qsizetype> anchos = {},
                       bool con_marca = false);

    /// @return true before the first cell; a cell without text counts
    bool Vacio() const { return !con_celdas; }
    const QString& Texto() const { return linea; }
    void Vaciar();

private:
    const QString sep;
    QString linea;
    bool con_celdas = false;
};

/// A level field's name as titles show it: without its mark of position.
QString Titulo_De(const QString& campo);

/// Widths of the columns: the longest cell, and the title when there are titles.
void Anchos_Columna(const QStringList& campos, const Filas_Exportar& filas,
                    std::vector<qsizetype>& anchos, bool con_titulos);
/// Widths from the titles alone, trimmed; 0 without titles.
void Anchos_Titulos(const QStringList& campos, const Filas_Exportar& filas,
                    std::vector<qsizetype>& anchos, bool con_titulos);
