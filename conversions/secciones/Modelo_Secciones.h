#pragma once

#include <map>
#include <QString>
#include <vector>

struct Punto_Seccion {
    double desplazamiento = 0; ///< metres from the axis, left negative
    double cota = 0;           ///< metres
};

struct Seccion {
    double pk = 0; ///< metres
    std::vector<Punto_Seccion> puntos;
};

/// Cross sections in the order in which their stations first came.
class Secciones {
public:
    QString nombre; ///< empty when the source has none

    /// Opens the section of station `pk`; a station already there (within 0.0005 m) is the earlier
    /// one. @return its index
    size_t Abrir(double pk);
    /// Adds a point to the section `indice`, as `Abrir` gave it.
    void Anadir(size_t indice, Punto_Seccion punto) { lista[indice].puntos.push_back(punto); }

    /// Sorts the points of each section by offset, ascending; equal offsets keep their order, since
    /// they are the two edges of a wall. Sections without points are taken away.
    void Ordenar();

    const std::vector<Seccion>& Lista() const { return lista; }
    bool Vacia() const { return lista.empty(); }

private:
    std::vector<Seccion> lista;
    std::map<double, size_t> por_pk;
};
