#pragma once

#include <QString>

/// The table that the writers of workbooks and databases are measured with.
constexpr int FILAS = 32768;
constexpr int COLUMNAS = 8;

/// What a field book exports: names and codes that come back, coordinates that don't.
inline QString Celda_De_Campo(int fila, int columna)
{
    switch (columna) {
    case 0:
        return QStringLiteral("P%1").arg(fila);
    case 1:
    case 2:
    case 3:
        return QString::number(4500000.0 + fila * 1.237 + columna * 317.1, 'f', 3);
    case 4:
        return QStringLiteral("Código %1").arg(fila % 40);
    case 5:
        return QStringLiteral("Descripción del punto %1").arg(fila % 500);
    case 6:
        return QString::number(fila % 400 + 0.125, 'f', 4);
    default:
        return QStringLiteral("%1:%2").arg(fila / 60 % 24, 2, 10, QChar(u'0')).arg(fila % 60);
    }
}
