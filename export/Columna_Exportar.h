#pragma once

#include <initializer_list>
#include <QByteArray>
#include <QString>
#include <vector>

/// A cell of the row table where it lies: characters whose byte in the program's page is their own
/// code, or UTF-16 units.
struct Vista_Celda {
    QByteArrayView pagina;
    QStringView unidades;

    qsizetype Largo() const { return pagina.size() + unidades.size(); }
    /// @return a null character for an empty cell
    QChar Primera() const;
    /// @return true when it holds nothing but blanks
    bool Blanca() const;
    QString Texto() const;
};

/// One column of the row table. A session of half a million lines has millions of cells: they are
/// kept packed, a byte a character as nearly all are, and one that repeats the cell above it takes
/// no place of its own.
class Columna_Exportar {
public:
    Columna_Exportar() = default;
    Columna_Exportar(std::initializer_list<QString> celdas);

    void push_back(QStringView celda);
    std::size_t size() const { return inicios.size(); }
    void reserve(std::size_t filas) { inicios.reserve(filas); }

    /// The cell as it was put. @param fila  from 0
    Vista_Celda Vista(std::size_t fila) const;
    /// The cell as the outputs show it: with blanks on its right once the column is made even.
    QString Celda(std::size_t fila) const;

    /// Length of the longest cell.
    qsizetype Ancho() const { return ancho; }
    /// All cells are shown with the length of the longest.
    void Igualar() { igualada = true; }
    bool Igualada() const { return igualada; }
    /// Blanks that `Celda` puts behind the cell.
    qsizetype Relleno(std::size_t fila) const { return igualada ? ancho - Vista(fila).Largo() : 0; }
    /// Keeps the rows of these numbers, which grow.
    void Quedarse_Con(const std::vector<std::size_t>& filas);

    /// As the outputs show them.
    bool operator==(const Columna_Exportar& otra) const;

private:
    void Anotar(std::size_t inicio, qsizetype largo);
    bool Anadir_De_Pagina(QStringView celda);

    // A cell is its length in a byte and its characters; or the mark of a long or a wide one, the
    // length in four bytes, and for a wide one its units, at an even place.
    QByteArray bytes;
    std::vector<quint32> inicios;
    qsizetype ancho = 0;
    bool igualada = false;
};
