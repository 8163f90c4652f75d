#pragma once

#include "export/plano/Plano.h"

/// Which part of the ground a window or a sheet shows, and how large. Its units are pixels, or
/// whatever the sheet counts in; y grows downwards there.
class Vista_Plano {
public:
    /// Shows all of a rectangle with a margin around.
    void Encajar(const Caja_Plano& caja, double ancho, double alto);
    /// Puts a place of the ground in the middle.
    void Centrar(Lugar_Plano lugar) { centro = lugar; }
    void Tamano(double ancho_, double alto_);
    /// Units a metre.
    double Escala() const { return escala; }
    void Poner_Escala(double unidades_por_metro);
    /// Larger (above 1) or smaller, the ground under a point of the window staying there.
    void Acercar(double veces, double x, double y);
    /// Drags the ground by so many units.
    void Arrastrar(double dx, double dy);

    Lugar_Plano A_Pantalla(Lugar_Plano terreno) const;
    Lugar_Plano A_Terreno(double x, double y) const;
    /// The ground in sight.
    Caja_Plano En_Vista() const;

private:
    Lugar_Plano centro;
    double escala = 1;
    double ancho = 1, alto = 1;
};

/// The smallest of the usual scales (1:N with N 1, 2, 2.5 or 5 times a power of ten, from 100 up) at
/// which a rectangle fits a sheet. @param ancho, alto  of the sheet, millimetres. @return N
double Escala_Que_Cabe(const Caja_Plano& caja, double ancho, double alto);
