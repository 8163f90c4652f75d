#pragma once

#include "app/cli/Argumentos.h"

#include <QIODevice>
#include <QString>
#include <QStringList>

/// Where an order reads and writes: handed in, so that tests run orders without a process.
struct Contexto {
    QString dir;                  ///< install directory (--dir, else the program's own)
    bool si = false;              ///< --si: every question is answered "Sí"
    QIODevice* salida = nullptr;  ///< results, UTF-8
    QIODevice* errores = nullptr; ///< messages, UTF-8

    /// One tab-separated result line; tabs and line ends inside a field become blanks.
    void Fila(const QStringList& campos) const;
    /// One plain result line.
    void Linea(const QString& texto) const;
    /// One line of messages.
    void Mensaje(const QString& texto) const;
};

/// Exit status of an order.
enum Estado_Salida { HECHO = 0, RECHAZADO = 1, MAL_USO = 2 };

/// Ends an order with status 1 when its reason has been said already.
struct Orden_Rechazada {};

/// One order of miraldos-cli. `ejecutar` gets the words behind the order's name and returns an exit
/// status; it may throw Error_Uso (status 2), Error_Ejecucion (status 1, message shown) and
/// Orden_Rechazada (status 1).
struct Orden {
    QString nombre;
    QString uso; ///< its words, for the help: "tabla ENTRADA SALIDA [--separador coma]"
    int (*ejecutar)(const Contexto&, const QStringList& palabras);
    bool dibuja = false; ///< needs the fonts, and with them the graphics part of the library
};

/// All orders, in the order of the help. A new order is one file Orden_X.cpp and one row here.
const QList<Orden>& Ordenes();

/// @return true when the words name an order that draws
bool Hay_Que_Dibujar(const QStringList& palabras);

/// Runs one command line.
/// @param palabras  all words behind the program's name; --dir and --si may stand anywhere
/// @return exit status: 0 done, 1 refused or failed, 2 wrong usage
int Ejecutar_Orden(Contexto contexto, const QStringList& palabras);
