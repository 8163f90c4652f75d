#include "conversions/suelo/Cifras.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace Cifras {

namespace {

// The digits of the numbers that files are full of, several times faster than the exact way: scaled
// to an integer, as long as the scaled value lies clearly off the middle between two integers,
// where its own rounding error could turn the digit.
// @return null when the number needs the exact way
template <int DECIMALES, std::uint32_t POTENCIA> char* Poner_Corto(char* destino, double valor)
{
    constexpr double ESCALADO_MAXIMO = 4e9; // fits 32 bits; its rounding error stays below 1e-6
    constexpr double DUDA = 1e-5;
    const double escalado = std::fabs(valor) * POTENCIA;
    if (!(escalado < ESCALADO_MAXIMO)) return nullptr;
    auto redondo = std::uint32_t(escalado);
    const double sobra = escalado - redondo;
    if (std::fabs(sobra - 0.5) < DUDA) return nullptr;
    if (sobra > 0.5) ++redondo;

    if (valor < 0 && redondo != 0) *destino++ = '-';
    std::uint32_t entera = redondo / POTENCIA, fraccion = redondo % POTENCIA;
    int cifras = 1;
    for (std::uint32_t potencia = 10; entera >= potencia; potencia *= 10)
        ++cifras;
    for (char* p = destino + cifras; p > destino; entera /= 10)
        *--p = static_cast<char>('0' + entera % 10);
    destino += cifras;
    *destino = '.';
    for (char* p = destino + DECIMALES; p > destino; --p, fraccion /= 10)
        *p = static_cast<char>('0' + fraccion % 10);
    return destino + DECIMALES + 1;
}

char* Poner_Corto(char* destino, double valor, int decimales)
{
    if (decimales == 3) return Poner_Corto<3, 1000>(destino, valor);
    if (decimales == 4) return Poner_Corto<4, 10000>(destino, valor);
    return nullptr;
}

} // namespace

char* Poner_Fijo(char* destino, double valor, int decimales)
{
    if (char* const fin = Poner_Corto(destino, valor, decimales)) return fin;
    const auto r =
        std::to_chars(destino, destino + FIJO_MAXIMO, valor, std::chars_format::fixed, decimales);
    const bool cero = std::none_of(destino, r.ptr, [](char c) { return c >= '1' && c <= '9'; });
    if (!cero || *destino != '-') return r.ptr;
    return std::copy(destino + 1, r.ptr, destino);
}

void Anadir_Fijo(QByteArray& salida, double valor, int decimales)
{
    char texto[FIJO_MAXIMO];
    salida.append(texto, Poner_Fijo(texto, valor, decimales) - texto);
}

QByteArray Fijo(double valor, int decimales)
{
    QByteArray s;
    Anadir_Fijo(s, valor, decimales);
    return s;
}

QByteArray Azimut(double radianes)
{
    double gon = std::fmod(radianes * 200 / std::numbers::pi, 400);
    if (gon < 0) gon += 400;
    const QByteArray s = Fijo(gon, 4);
    return s == "400.0000" ? QByteArrayLiteral("0.0000") : s;
}

} // namespace Cifras
