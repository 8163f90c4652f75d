#pragma once

#include "core/Decimal.h"

#include <optional>
#include <QString>

enum class Serie;
struct Familia;

/// Coordinate offsets: the texts that the user types for them, and their addition to a coordinate.
/// One reading of an offset's text serves the decoder and every upload.

/// The width of every coordinate: seven integer digits and three decimals.
inline constexpr char16_t FORMATO_COORDENADA[] = u"7,3";

/// Widths written as "e,d".
struct Anchos_Numero {
    int enteros = 0, decimales = 0;
    /// A part that is missing, or no number, is 0; none goes above 18.
    static Anchos_Numero Leer(QStringView formato);
};

/// Number that an offset's text stands for. Behind the sign, exactly e + d digits without a point
/// are the fixed form and split into integer and decimals; any other text is its own value: "12"
/// is 12.
/// @param formato  "e,d"
/// @throws Error_Ejecucion 6 when it is beyond 18 integer digits
Decimal Valor_Desplazamiento(const QString& texto, const QString& formato);

/// The offsets of the three axes, as texts; "0" means none.
struct Desplazamientos {
    QString x = QStringLiteral("0"), y = x, z = x;
    /// The ones in force: `Desp_X`, `Desp_Y`, `Desp_Z`.
    static Desplazamientos En_Vigor();
    /// The offset that a mark of `Campos` adds: "CX", "CY", "CZ" in any case; null for any other.
    const QString* De_Marca(QStringView marca) const;
};

/// The addition of one offset to many coordinates, as a family writes them. Series B: the value is
/// decimal text. Series A: a sign and a run of digits whose last ten count, with the decimals of
/// `posdigit`, or, with a point in it, decimal text. The sum is exact; its decimals are rounded half
/// to even. Deliberate: a carry out of them is lost, so that 0.9996 gives "0.000".
class Sumador {
public:
    /// @param familia  whose coordinates they are
    /// @param formato_desp  "e,d" of the offset's text
    /// @param posdigit  `Campos.PosDigit` of the coordinate's field
    /// @param formato_suma  "e,d" of the sum: its decimals are written
    Sumador(const Familia& familia, const QString& desplazamiento, const QString& formato_desp,
            const QString& posdigit, const QString& formato_suma);

    /// @param de_cable  series A only: the wire form, a sign and nine digits, ten from 1,000,000
    ///                  up, instead of signed decimal text
    /// @return an empty text for an empty value and for a family without coordinates
    /// @throws Error_Ejecucion 13 when a value of series A is no number, 6 when it is too long
    QString Sumar(QStringView valor, bool de_cable = false) const;
    /// The decimal text, into one that is used again and again.
    void Sumar(QStringView valor, QString& en) const;

private:
    Decimal Valor_Sin_Punto(QStringView valor) const;
    std::optional<qint64> Unidades_De(QStringView valor) const;
    std::optional<qint64> Unidades_Con_Punto(QStringView valor) const;

    Serie serie;
    Decimal desplazamiento;
    Anchos_Numero anchos;
    int decimales_campo, decimales_suma;
    // The offset in units of the sum's last decimal; nothing when it has further ones.
    std::optional<qint64> unidades;
};

/// One such addition. @param modo  "D": signed decimal text; "C": the wire form
/// The other parameters, result and errors as in `Sumador`.
QString Sumar_Desplazamiento(const Familia& familia, const QString& modo,
                             const QString& desplazamiento, const QString& formato_desp,
                             const QString& valor, const QString& posdigit,
                             const QString& formato_suma);

/// The form without a point that the KRT300 family uses in its own files: e + d digits, with "-" in
/// front of a negative number; further decimals and leading digits are dropped. An empty text gives
/// e + d - 1 zeros.
QString Forma_Fija(const QString& texto, const QString& formato);

/// What a key does in a box that takes an offset.
struct Efecto_Tecla {
    bool pasa = false; ///< the box takes the key as usual
    bool pita = false;
    /// The box's whole text is replaced by this, with the caret behind `caret` characters.
    std::optional<QString> texto;
    qsizetype caret = 0;
};
/// @param texto  what the box holds
/// @param caret  where the caret stands, from 0
Efecto_Tecla Tecla_Desplazamiento(const QString& texto, qsizetype caret, QChar tecla);

/// What a box holds after `tecleado` has been typed into it key by key, empty at first.
QString Teclear_Desplazamiento(const QString& tecleado);

/// No offset on any axis.
void Quitar_Desplazamientos();
/// Takes the texts of the three boxes as the offsets in force, as the model in force reads them: a
/// KRT300 takes the fixed form, any other family the text as typed, an empty box being "0".
void Poner_Desplazamientos(const QString& x, const QString& y, const QString& z,
                           const QString& formato);
