#pragma once

#include <QString>
#include <vector>

/// A named point. The numbers stay the texts of the source (with "." as decimal mark): converting a
/// point must not change a digit that the surveyor wrote.
struct Punto {
    QString nombre;
    QString x, y; ///< empty where the source gives a height only
    QString z;
    QString codigo;
};

/// Points in the order of their source.
struct Puntos {
    QString nombre; ///< of the file
    std::vector<Punto> lista;
};
