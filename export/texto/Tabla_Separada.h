#pragma once

#include <optional>
#include <QByteArray>
#include <QStringList>

#include <vector>

/// A table as a separated text holds it.
struct Tabla_Separada {
    /// A row: never more cells than titles, perhaps fewer.
    struct Fila {
        int linea = 0; ///< of the text on which it begins, from 1
        QStringList celdas;
    };

    QStringList titulos;
    std::vector<Fila> filas;
};

/// Reads a separated text in UTF-8, with or without a byte order mark, its lines ended by LF or
/// CR LF. The first line holds the titles. Every separator counts: two side by side have an empty
/// cell between them.
/// With the comma a cell may stand between double quotes, and then hold commas, line ends and,
/// twice each, double quotes. With the other separators, as usual with them, a quote is a character
/// like any other.
/// @throws Error_Ejecucion 13, naming the line: bytes that aren't UTF-8, a null character, more
///         cells than titles, quotes that don't close or text behind them; 62 for an empty text
Tabla_Separada Leer_Tabla_Separada(QByteArrayView utf8, QChar separador);

/// One line of cells separated by tabs; tabs and line ends inside a cell become blanks.
QByteArray Linea_Tabulada(const QStringList& celdas);

/// The number that a whole text is: blanks around, a sign, digits with a point among them, an
/// exponent. Nothing for any other text, also for one with a comma, and for what no double holds.
std::optional<double> Numero_De_Texto(QStringView texto);

/// The shortest text that is read back as the same number, with a point; whole numbers up to 15
/// digits have neither point nor exponent.
QString Texto_De_Numero(double numero);
