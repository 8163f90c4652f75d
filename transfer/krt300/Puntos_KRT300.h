#pragma once

#include <QList>
#include <QString>

/// Points of a file for a KRT300 or PX7: read, shifted, checked and written as the wire has them.
/// The file is drawn in docs/formas/ficheros-de-puntos.md, the records in docs/formas/krt300.md.

/// Most points of one upload, and longest name that the instrument takes.
inline constexpr qsizetype MAX_PUNTOS = 8192;
inline constexpr qsizetype LARGO_NOMBRE = 10;

/// One held point.
struct Punto_Envio {
    QString nombre;
    QString
        coordenadas[3]; ///< first, second and height: decimal text with a comma, later the wire's
    QString codigo;     ///< held and not sent
};

/// Reads a point file; each coordinate gets the offset in force of its axis. On a model whose name
/// holds "X13" the first two lose the millions of their leading digit.
/// @param separador  between fields; runs of a blank count as one
/// @param puntos  what was read, also when it breaks off
/// @return false after a box: the file is absent, or a line has fewer than four fields
/// @throws Error_Ejecucion 9 for more than `MAX_PUNTOS` points, 13 for a coordinate that is no
///         number, 5 for a name that the instrument doesn't take, each naming the line; as
///         `Leer_Lineas_Envio` otherwise
/// A cancel in `FrmProc` ends the reading.
bool Leer_Puntos(const QString& fichero, const QString& separador, QList<Punto_Envio>& puntos);

/// Writes the coordinates of each point in the form of the wire, sign and nine digits of thousandths
/// (ten from 1,000,000 up), rounded half away from zero; the sign is that of the sum.
/// @return the points with a coordinate that the instrument can't hold, which stay as they were:
///         joined with code 6, their name and coordinates with code 5; empty when there is none
QString Comprobar_Puntos(QList<Punto_Envio>& puntos);

/// Record of a checked point.
QString Registro_Punto(const Punto_Envio& punto);
