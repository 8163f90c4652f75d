#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// Wrong usage of the command line; ends the run with status 2.
struct Error_Uso {
    QString texto;
};

/// The words of an order, cut into loose words and options.
class Argumentos {
public:
    /// @param palabras   words behind the order's name; "--x=v" and "--x v" are the same, and behind
    ///                   "--" every word is a loose one
    /// @param con_valor  names of the options that take a value, without the dashes
    /// @param sin_valor  names of the switches
    /// @throws Error_Uso for an unknown option, a missing value or one given twice
    Argumentos(const QStringList& palabras, const QStringList& con_valor,
               const QStringList& sin_valor = {});

    /// Loose words. @throws Error_Uso unless there are from `minimo` to `maximo` of them
    QStringList Sueltos(qsizetype minimo, qsizetype maximo) const;

    bool Hay(const QString& nombre) const { return opciones.contains(nombre); }
    /// Value of an option, or `defecto`.
    QString Opcion(const QString& nombre, const QString& defecto = {}) const;
    /// @throws Error_Uso when the option is missing
    QString Obligada(const QString& nombre) const;
    /// @throws Error_Uso when the value is no whole number
    int Numero(const QString& nombre) const;

private:
    QStringList sueltos;
    QHash<QString, QString> opciones;
};

/// A loose word read as a whole number. @throws Error_Uso with `que` in its text when it is none
int Numero_De(const QString& palabra, const QString& que);
