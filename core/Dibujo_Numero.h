#pragma once

#include <optional>
#include <QString>

/// A number picture taken apart once: "0" a digit or zero, "#" a digit or nothing, "." the decimal
/// mark, what stands around them as it is. `Basico::Formato` is this object used once.
class Dibujo_Numero {
public:
    explicit Dibujo_Numero(const QString& dibujo);

    /// `numero` after the picture, with the machine's comma as the mark, rounded half away from zero
    /// on its 15-digit decimal reading. A negative number keeps its "-" also when all the digits
    /// shown are 0, so that a fixed form always has its sign.
    QString Texto(double numero) const;

    /// What a picture of zeros alone ("0.000") asks for.
    struct Solo_Ceros {
        int enteros = 0;   ///< digits of the integer part at least
        int decimales = 0; ///< digits behind the mark, at least one
    };
    /// @return nothing for any other picture
    std::optional<Solo_Ceros> De_Ceros() const;

private:
    QString antes, despues; // what stands around the marks
    bool con_marca = false;
    int minimo = 0;    // digits of the integer part at least
    int decimales = 0; // places behind the mark
    int fijos = 0;     // of them, those written even when they are 0
    bool de_ceros = false;
};
