#pragma once

#include <optional>
#include <QString>

/// A decimal number held exactly (18 digits on each side of the mark), so that the sum of two
/// coordinates never passes through a binary fraction: 0.1 + 0.2 is 0.3. Zero has no sign.
class Decimal {
public:
    Decimal() = default;
    /// @param miles  the number in thousandths
    static Decimal De_Miles(qint64 miles);

    /// A text that is a number whole: blanks around, a sign, digits with one "." or "," as the
    /// mark.
    /// @return nothing when it is no number
    /// @throws Error_Ejecucion 6 when the integer part has more than 18 digits
    static std::optional<Decimal> Leer(QStringView texto);

    /// The number at the head of `texto`, by the rule of `Basico::Val`: 0 when none stands there.
    /// @throws Error_Ejecucion 6 when the integer part has more than 18 digits
    static Decimal Prefijo(QStringView texto);

    /// The number that a run of digits without a mark stands for.
    /// @param cifras  digits alone
    /// @param decimales  how many of them, from the right, are decimals, 0 to 18
    /// @return nothing when a character is no digit or there is none
    static std::optional<Decimal> De_Cifras(QStringView cifras, int decimales);

    bool Negativo() const { return negativo; }
    Decimal Absoluto() const;
    Decimal operator-() const;
    /// @throws Error_Ejecucion 6 when the integer part outgrows 18 digits
    Decimal operator+(const Decimal& otro) const;
    Decimal operator-(const Decimal& otro) const { return *this + -otro; }
    bool operator==(const Decimal& otro) const = default;
    bool operator<(const Decimal& otro) const;
    bool operator>(const Decimal& otro) const { return otro < *this; }
    bool operator<=(const Decimal& otro) const { return !(otro < *this); }
    bool operator>=(const Decimal& otro) const { return !(*this < otro); }

    /// The number in units of its n-th decimal (0 to 18).
    /// @return nothing when it has decimals beyond them, or is too long
    std::optional<qint64> En_Unidades(int n) const;

    /// Integer part of the absolute value, cut.
    quint64 Entera() const { return entera; }
    /// The decimals alone, rounded to `n` digits (0 to 18) half to even and zero filled; a carry
    /// into the integer part is lost: 0.9996 to three digits is "000".
    QString Decimales(int n) const;
    /// Sign, integer part, point and `n` decimals (1 to 18) as `Decimales` gives them: "-12.500".
    /// What rounds to zero keeps its sign.
    QString Texto_Fijo(int n) const;
    /// Shortest plain text, with a point: "-12.5", "7".
    QString Texto() const;

private:
    quint64 Redondeados(int n) const;
    static Decimal De_Partes(bool negativo, QStringView entera, QStringView fraccion);

    bool negativo = false;
    quint64 entera = 0;
    quint64 fraccion = 0; // in units of 10^-18
};
