#pragma once

#include "export/mdb/Formato_Jet.h"

namespace Jet {

/// A text value as its column stores it: UTF-16, or a mark and one byte a character where the
/// column allows it, the text has at least three characters and all lie in U+0001 to U+00FF.
/// A leading U+FEFF is dropped: its bytes are those of the mark.
class Texto_Cifrado {
public:
    /// @param comprimido  the column allows one byte a character
    Texto_Cifrado(QStringView valor, bool comprimido);

    /// Bytes that the value takes.
    qsizetype Largo() const { return estrecho ? 2 + texto.size() : 2 * texto.size(); }
    /// Writes the `Largo()` bytes.
    void Escribir(uchar* donde) const;

private:
    QStringView texto;
    bool estrecho;
};

/// Name of a table or column: 1 to 64 characters, none of . ! ` [ ] nor a control character, no
/// blank at its head.
/// @throws Error_Ejecucion 3125 naming it
void Comprobar_Nombre(const QString& nombre);

} // namespace Jet
