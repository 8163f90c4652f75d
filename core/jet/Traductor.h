#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// A literal lifted out of a statement, to be bound; a hole takes the caller's next value.
struct Valor_Sql {
    enum class Tipo { Hueco, Texto, Entero, Real } tipo = Tipo::Hueco;
    QByteArray texto;
    qint64 entero = 0;
    double real = 0;
};

/// A statement in SQLite's grammar, with the values that its `?` take in order.
struct Sentencia_Sql {
    QByteArray sql;
    std::vector<Valor_Sql> valores;
};

/// What the program's SQL text means to SQLite.
struct Traduccion {
    Sentencia_Sql completa;

    /// The query takes whole rows of one table of the program, without joining, grouping or leaving
    /// out doubles: its members are rows that can be found again and edited.
    bool de_una_tabla = false;
    QString tabla;
    /// Row numbers of the members in order; and the query's columns of the row `?`.
    Sentencia_Sql filas;
    QByteArray una_fila;
    /// The same members restricted by a further condition are `antes` + condition + `despues`.
    QByteArray texto_filas_antes, texto_filas_despues;
};

/// Translates SQL as the program writes it:
/// - `Left(`, `Right(`, `IsNull(` become calls, "text" in double quotes a text;
/// - literals behind WHERE, SET and VALUES become parameters, so that statements built by joining
///   texts find their prepared form again;
/// - a SELECT without an order, and rows that an order leaves level, follow insertion order;
///   DISTINCT without an order gives each row at its first appearance.
/// What isn't understood passes as it stands and SQLite judges it.
/// @throws Error_Ejecucion 3075, 3085 for what SQLite would take for something else (core/jet/Gramatica)
Traduccion Traducir(const QString& sql);
