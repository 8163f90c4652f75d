#pragma once

#include <QByteArray>
#include <vector>

/// What a word or symbol of SQL means to the translator; all others are `Otra`.
enum class Pieza : unsigned char {
    Otra,
    Abre,
    Cierra,
    Coma,
    Punto,
    Punto_Y_Coma,
    Asterisco,
    All,
    As,
    By,
    Cross,
    Distinct,
    From,
    Full,
    Group,
    Having,
    Inner,
    Isnull,
    Join,
    Left,
    Limit,
    On,
    Order,
    Outer,
    Right,
    Select,
    Set,
    Values,
    Where,
    Combinar, ///< UNION, EXCEPT, INTERSECT
    Resumir,  ///< COUNT, SUM, AVG, MIN, MAX, TOTAL
};

enum class Clase_Ficha : unsigned char { Palabra, Nombre, Numero, Texto, Simbolo, Hueco };

/// A token of SQL text: its bytes and the brackets open around it.
struct Ficha_Sql {
    Clase_Ficha clase;
    Pieza pieza;
    int ini, fin;
    int nivel;
};

/// Cuts SQL text into tokens; what isn't understood is a symbol of one byte.
std::vector<Ficha_Sql> Leer_Fichas(const QByteArray& sql);
