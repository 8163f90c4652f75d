#pragma once

// The form: docs/formas/tablas.md

#include "tools/base/Csv.h"

#include <map>

// The delivered tables as their files hold them, one UTF-8 file of comma-separated values a table:
// the header names the columns, a row is a row of the database. Four things are written shorter
// than they are stored, because they are read by people:
//  - Identificadores.Ancho is the length of the whole record, identifier included, for the families
//    of fixed columns; it is checked against the widths of the fields and not stored;
//  - Ayudas.Maquina "*KRT300" is every model of the family;
//  - Formatos2.Campo of the level is "0:Trabajo" or "1:Lectura", half and field;
//  - Lib1.Codigos joins the codes with "|", an empty item first.

/// How a table's file must look. The kinds and widths of the columns are those of the database.
struct Definicion_Tabla {
    QString nombre;
    QStringList columnas;   ///< in the order of the header
    QStringList opcionales; ///< those whose cells may be empty
    QStringList clave;      ///< columns that no two rows share
};

/// Every table of the delivered database that has a file, in the order of their dependence.
const QList<Definicion_Tabla>& Definiciones();

/// A table read: cells are reached by row and column name.
class Tabla {
public:
    Tabla() = default;
    Tabla(const Definicion_Tabla& definicion, const QList<Fila>& filas);

    const Definicion_Tabla& Definicion() const { return *definicion; }
    QString Fichero() const { return definicion->nombre + QStringLiteral(".csv"); }
    qsizetype Filas() const { return filas.size(); }
    int Linea(qsizetype fila) const { return filas[fila].linea; }
    /// @param columna  one of the definition's; another one is a mistake of the caller
    QString Celda(qsizetype fila, QAnyStringView columna) const;
    int Numero(qsizetype fila, QAnyStringView columna) const;
    /// @return a fault of that row
    Falta Falta_En(qsizetype fila, const QString& motivo) const;

private:
    const Definicion_Tabla* definicion = nullptr;
    QList<Fila> filas;
};

/// The tables by name.
using Juego = std::map<QString, Tabla>;

/// Reads every table of a folder and checks its form: header, number of cells, obligatory cells,
/// numbers, texts wider than their columns, repeated keys.
/// @return the tables; those whose file is missing or damaged hold the rows that could be read
Juego Leer_Tablas(const QString& carpeta, QList<Falta>& faltas);
