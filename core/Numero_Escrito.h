#pragma once

#include <optional>
#include <QByteArray>
#include <QStringView>
#include <QVarLengthArray>

/// How a number is written.
struct Grafia {
    char16_t marca = u'.';           ///< stands before the decimals
    bool blancos = false;            ///< blanks, tabs and line feeds count for nothing anywhere
    bool blancos_tras_signo = false; ///< blanks may follow the sign
    bool puntos_de_miles = false;    ///< "." may stand behind any digit of the integer part
};

/// The number at the head of a text, taken apart: what `Val`, the Spanish conversions and the exact
/// decimals make their values of.
struct Numero_Escrito {
    using Cifras = QVarLengthArray<char16_t, 32>;

    bool negativo = false;
    Cifras entera, fraccion;
    /// Behind "e" or "d" in any case; without a digit it is no exponent and counts for nothing.
    bool exponente_negativo = false;
    Cifras exponente;
    /// Characters of the text that it takes; a mark of an exponent without digits is not among
    /// them.
    qsizetype leidos = 0;

    /// @return false when there is no digit: no number stands there
    bool Hay() const { return !entera.isEmpty() || !fraccion.isEmpty(); }
    /// "-12.5e-3", as the C locale writes it.
    QByteArray Llano() const;
};

/// Reads as far as the text goes on being a number.
Numero_Escrito Leer_Numero(QStringView texto, const Grafia& grafia);

/// A whole text read as the Spanish machine reads numbers: blanks around, a sign, digits with "."
/// between thousands, one decimal comma, an exponent.
/// @return nothing when it is none
/// @throws Error_Ejecucion 6 when it is too big, 13 when it is too small to be held
std::optional<double> Leer_Numero_Espanol(QStringView texto);
/// @return true when it is one, however big
bool Es_Numero_Espanol(QStringView texto);
