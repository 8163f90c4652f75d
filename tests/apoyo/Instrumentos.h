#pragma once

#include "tests/apoyo/Base_De_Prueba.h"

/// A field of a record kind, as a row of `Campos`.
struct Campo_De_Prueba {
    const char* campo;
    int digitos = 0;
    const char* posdigit = "*";
    const char* caracter = "";
    const char* forsalida = "";
    const char* especial = "";
    const char* marcas = "";
};

/// Adds a record kind: a row of `Identificadores` for each operation and its fields in order.
void Poner_Registro(const Base_De_Prueba& p, const QString& maquina, const QList<int>& opes,
                    const QString& id, const QString& nombre, const QString& tipo,
                    const QList<Campo_De_Prueba>& campos);

/// A small instrument of each family, with rows of the tests' own:
/// - KRT300 and PX7, operations 0 and 1: records x, y, z (coordinates), c (code), H (angle), and
///   the general record E (station and instrument height);
/// - KRT800: STN (general, values that hold on), XYZ and SS for operation 1, "Punto" for 4,
///   "Per.Trans" for 7, blank-separated EJE for 6;
/// - NV400: lines g and w.
void Poner_Instrumentos(const Base_De_Prueba& p);

/// Adds a session of lines, `Secuencia` from 1.
struct Linea_De_Prueba {
    QString punto, datos, datosg = {};
};
void Poner_Sesion(const Base_De_Prueba& p, int id, const QString& maquina, int ope,
                  const QList<Linea_De_Prueba>& lineas);
