#include "export/plano/Vista_Plano.h"

#include <algorithm>

namespace {

constexpr double AIRE = 0.9; // of the window that the rectangle takes
// Beyond these a plan is a spot or a blank, and the sums lose their digits.
constexpr double ESCALA_MINIMA = 1e-6, ESCALA_MAXIMA = 1e5;
constexpr double MM_POR_METRO = 1000;

} // namespace

void Vista_Plano::Tamano(double a, double b)
{
    ancho = std::max(a, 1.0);
    alto = std::max(b, 1.0);
}

void Vista_Plano::Poner_Escala(double unidades)
{
    escala = std::clamp(unidades, ESCALA_MINIMA, ESCALA_MAXIMA);
}

void Vista_Plano::Encajar(const Caja_Plano& caja, double a, double b)
{
    Tamano(a, b);
    centro = {(caja.x0 + caja.x1) / 2, (caja.y0 + caja.y1) / 2};
    // A single point shows some metres around it.
    const double w = std::max(caja.Ancho(), 1.0), h = std::max(caja.Alto(), 1.0);
    Poner_Escala(AIRE * std::min(ancho / w, alto / h));
}

void Vista_Plano::Acercar(double veces, double x, double y)
{
    const Lugar_Plano quieto = A_Terreno(x, y);
    Poner_Escala(escala * veces);
    const Lugar_Plano movido = A_Terreno(x, y);
    centro.x += quieto.x - movido.x;
    centro.y += quieto.y - movido.y;
}

void Vista_Plano::Arrastrar(double dx, double dy)
{
    centro.x -= dx / escala;
    centro.y += dy / escala;
}

Lugar_Plano Vista_Plano::A_Pantalla(Lugar_Plano terreno) const
{
    return {ancho / 2 + (terreno.x - centro.x) * escala,
            alto / 2 - (terreno.y - centro.y) * escala};
}

Lugar_Plano Vista_Plano::A_Terreno(double x, double y) const
{
    return {centro.x + (x - ancho / 2) / escala, centro.y - (y - alto / 2) / escala};
}

Caja_Plano Vista_Plano::En_Vista() const
{
    const Lugar_Plano a = A_Terreno(0, alto), b = A_Terreno(ancho, 0);
    return {a.x, a.y, b.x, b.y};
}

double Escala_Que_Cabe(const Caja_Plano& caja, double ancho, double alto)
{
    const double hace_falta =
        std::max(caja.Ancho() * MM_POR_METRO / ancho, caja.Alto() * MM_POR_METRO / alto);
    for (double potencia = 100;; potencia *= 10)
        for (const double veces : {1.0, 2.0, 2.5, 5.0})
            if (potencia * veces >= hace_falta) return potencia * veces;
}
