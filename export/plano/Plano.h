#pragma once

#include <optional>
#include <QList>
#include <QString>

#include <vector>

/// What a plan shows: points, texts and lines on layers, in metres of the ground, X to the east and
/// Y to the north.

struct Lugar_Plano {
    double x = 0, y = 0;
    bool operator==(const Lugar_Plano&) const = default;
};

struct Capa_Plano {
    QString nombre;
    bool visible = true;
};

struct Punto_De_Plano {
    QString nombre;
    Lugar_Plano lugar;
    std::optional<double> cota;
    int capa = 0, color = 7; ///< index of its layer; colour number as in drawings
    bool repetido = false;   ///< another point has its name
    bool lejano = false;     ///< it lies so far off that the others shrink to a spot
};

struct Texto_Plano {
    QString texto;
    Lugar_Plano lugar; ///< of its left end
    double altura = 0; ///< metres; 0: a label of one size whatever the scale
    int renglon = 0;   ///< of a label: so many lines above its place, or below it
    int capa = 0, color = 7;
};

struct Linea_Plano {
    std::vector<Lugar_Plano> vertices;
    int capa = 0, color = 7;
};

/// A rectangle of the ground.
struct Caja_Plano {
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    double Ancho() const { return x1 - x0; }
    double Alto() const { return y1 - y0; }
};

class Plano {
public:
    QList<Capa_Plano> capas;
    std::vector<Punto_De_Plano> puntos;
    std::vector<Texto_Plano> textos;
    std::vector<Linea_Plano> lineas;

    /// Index of the layer of that name, made if there is none.
    int Capa(const QString& nombre);
    bool Visible(int capa) const { return capas[capa].visible; }
    bool Vacio() const { return puntos.empty() && textos.empty() && lineas.empty(); }

    /// A point with its labels, each on the layer that drawings give it.
    void Poner_Punto(const QString& nombre, Lugar_Plano lugar, std::optional<double> cota,
                     const QString& codigo);
    /// Finds the repeated and the far-off points, once all are there. Far off is what lies more than
    /// thirty times as far from the middle of the points as half of them do.
    void Marcar();

    /// What the visible layers take; far-off points don't count unless there is nothing else.
    std::optional<Caja_Plano> Caja() const;
    /// The visible point nearest to a place, at most `radio` metres away.
    const Punto_De_Plano* Cercano(Lugar_Plano lugar, double radio) const;
    /// The place of a point by its name, without case; without such a point, that of a text.
    std::optional<Lugar_Plano> Buscar(const QString& nombre) const;
};

/// Length between two places, metres.
double Distancia(Lugar_Plano a, Lugar_Plano b);
