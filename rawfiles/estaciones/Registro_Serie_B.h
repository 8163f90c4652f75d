#pragma once

#include "core/Basico.h"
#include "core/Trozos.h"

/// A stored line of series B: an identifier, a blank, values separated by commas.
struct Registro_Serie_B {
    QString clave;   ///< the identifier
    QString valores; ///< what follows it, trimmed

    explicit Registro_Serie_B(const QString& linea)
        : clave(Trozo(1, linea, u' ')), valores(Basico::Trim(linea.mid(clave.size())))
    {
    }

    /// Value `n` from 1, without the blanks around it; empty when it is missing.
    QString Dato(int n) const { return Basico::Trim(Trozo(n, valores, u',')); }
    /// It names the point that the next observation goes to.
    bool Es_Visado() const { return clave == u"SS" || clave == u"FS"; }
};
