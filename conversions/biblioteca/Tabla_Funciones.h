#pragma once

#include "conversions/suelo/Informe_Lectura.h"

#include <QString>
#include <QStringList>
#include <QStringView>
#include <vector>

/// What a function of the library is asked: its arguments, sorted by their use.
struct Peticion_Funcion {
    QString entrada;   ///< source path
    QString salida;    ///< target path; of a list function the list file, empty for the usual one
    QStringList datos; ///< the other arguments in their order (index, names, texts, second source)
};

/// Result 1 converted, -1 converted with something invalid, 0 nothing converted (the report tells
/// why); a list function gives the number of lines.
using Cuerpo_Funcion = int (*)(const Peticion_Funcion&, Informe_Lectura&);

/// One function of the library.
struct Funcion {
    const char* nombre;     ///< without "MyDll_"
    const char* argumentos; ///< their names in order: ENTRADA, SALIDA, others; the last ones may be
                            ///< optional, in brackets
    Cuerpo_Funcion cuerpo;
};

/// The library's functions. A new format is one reader, one row in the list of its kind, one
/// sample: each kind has its rows beside its readers' declarations.
const std::vector<Funcion>& Tabla_Funciones();
std::vector<Funcion> Filas_Ejes();
std::vector<Funcion> Filas_Rasantes();
std::vector<Funcion> Filas_Secciones();
std::vector<Funcion> Filas_Puntos();
std::vector<Funcion> Filas_LandXML();

/// @param nombre  with or without "MyDll_"
/// @return the row, or null when no function has that name
const Funcion* Buscar_Funcion(QStringView nombre);

struct Numero_Argumentos {
    qsizetype minimo, maximo;
};
Numero_Argumentos Argumentos_De(const Funcion& funcion);

/// Runs a function of the library.
/// @param argumentos  in the order of the row; an optional one may be missing
/// @return the function's result; 0 when the number of arguments is wrong. It throws nothing.
int Ejecutar_Funcion(const Funcion& funcion, const QStringList& argumentos,
                     Informe_Lectura& informe);

/// The same by name; an unknown name gives 0.
int Ejecutar_Funcion(QStringView nombre, const QStringList& argumentos, Informe_Lectura& informe);
