#include "conversions/ejes/Geometria_Eje.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Geometria_Eje {

namespace {

/// Nodes and weights of Gauss's five-point rule on [-1, 1].
struct Nodo {
    double u, peso;
};
constexpr std::array<Nodo, 5> NODOS = {{{-0.9061798459386640, 0.2369268850561891},
                                        {-0.5384693101056831, 0.4786286704993665},
                                        {0.0, 0.5688888888888889},
                                        {0.5384693101056831, 0.4786286704993665},
                                        {0.9061798459386640, 0.2369268850561891}}};
constexpr double GIRO_POR_PANEL = 0.5;
constexpr double PANELES_MINIMOS = 32, PANELES_MAXIMOS = 4096;

/// sin(x)/x
double Seno_Entre(double x)
{
    return std::abs(x) < 1e-8 ? 1 : std::sin(x) / x;
}

Punto_Plano Integrar(const Elemento_Eje& e, double s)
{
    const double razon = (e.k2 - e.k1) / (2 * e.longitud);
    const double giro = (std::abs(e.k1) + std::abs(e.k1 + 2 * razon * s)) * std::abs(s);
    const int paneles = int(std::clamp(giro / GIRO_POR_PANEL, PANELES_MINIMOS, PANELES_MAXIMOS));
    const double medio = s / paneles / 2;
    Punto_Plano suma;
    for (int i = 0; i < paneles; ++i)
        for (const Nodo& n : NODOS) {
            const double t = (2 * i + 1 + n.u) * medio;
            const double a = e.azimut + (e.k1 + razon * t) * t;
            suma.x += n.peso * std::sin(a);
            suma.y += n.peso * std::cos(a);
        }
    return {suma.x * medio, suma.y * medio};
}

} // namespace

double Azimut(Punto_Plano a, Punto_Plano b)
{
    const double z = std::atan2(b.x - a.x, b.y - a.y);
    return z < 0 ? z + 2 * std::numbers::pi : z;
}

double Distancia(Punto_Plano a, Punto_Plano b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

double Giro(double angulo)
{
    const double g = std::remainder(angulo, 2 * std::numbers::pi);
    return g <= -std::numbers::pi ? g + 2 * std::numbers::pi : g;
}

Punto_Plano Polar(Punto_Plano p, double azimut, double distancia)
{
    return {p.x + distancia * std::sin(azimut), p.y + distancia * std::cos(azimut)};
}

double Curvatura(double radio)
{
    return std::abs(radio) < RADIO_MINIMO ? 0 : 1 / radio;
}

Situacion Avanzar(const Elemento_Eje& e, double s)
{
    if (e.k1 == e.k2) {
        const double medio_giro = e.k1 * s / 2;
        return {Polar(e.inicio, e.azimut + medio_giro, s * Seno_Entre(medio_giro)),
                e.azimut + 2 * medio_giro};
    }
    const Punto_Plano d = Integrar(e, s);
    return {{e.inicio.x + d.x, e.inicio.y + d.y},
            e.azimut + (e.k1 + (e.k2 - e.k1) * s / (2 * e.longitud)) * s};
}

Situacion Final(const Elemento_Eje& e)
{
    return Avanzar(e, e.longitud);
}

Clotoide_Local Clotoide_De(double radio, double A)
{
    if (A == 0) return {};
    Clotoide_Local c;
    c.longitud = A * A / radio;
    c.tau = c.longitud / (2 * radio);
    const Situacion f = Final({Clase_Elemento::Clotoide, {0, 0}, 0, c.longitud, 0, 1 / radio, A});
    c.X = f.punto.y;
    c.Y = f.punto.x;
    c.p = c.Y - radio * (1 - std::cos(c.tau));
    c.q = c.X - radio * std::sin(c.tau);
    return c;
}

std::optional<Tangentes> Tangentes_De(double giro, double radio, double A1, double A2)
{
    Tangentes t;
    t.entrada = Clotoide_De(radio, A1);
    t.salida = Clotoide_De(radio, A2);
    const double resto = giro - t.entrada.tau - t.salida.tau;
    if (resto < 0) return {};
    const double r1 = radio + t.entrada.p, r2 = radio + t.salida.p;
    t.T1 = t.entrada.q + r2 / std::sin(giro) - r1 / std::tan(giro);
    t.T2 = t.salida.q + r1 / std::sin(giro) - r2 / std::tan(giro);
    t.arco = resto * radio;
    return t;
}

Punto_Plano Centro(const Elemento_Eje& e)
{
    const double radio = 1 / e.k1;
    return {e.inicio.x + radio * std::cos(e.azimut), e.inicio.y - radio * std::sin(e.azimut)};
}

Punto_Plano Interseccion(Punto_Plano inicio, double azimut_inicio, Punto_Plano fin,
                         double azimut_fin, double longitud)
{
    constexpr double GIRO_MINIMO = 1e-6;
    const double giro = azimut_fin - azimut_inicio;
    if (std::abs(giro) < GIRO_MINIMO || std::abs(std::sin(giro)) < GIRO_MINIMO)
        return Polar(inicio, azimut_inicio, longitud / 2);
    const double dx = fin.x - inicio.x, dy = fin.y - inicio.y;
    return Polar(inicio, azimut_inicio,
                 (dx * std::cos(azimut_fin) - dy * std::sin(azimut_fin)) / -std::sin(giro));
}

} // namespace Geometria_Eje
