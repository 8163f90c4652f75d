#pragma once

#include "export/excel/Salida_Biff.h"

#include <algorithm>
#include <QHash>
#include <QString>

#include <vector>

/// The texts that the sheets of a Unicode workbook share: each different text is stored once and
/// cells name it by its place.
class Tabla_Cadenas {
public:
    /// Makes room for so many texts at once, within reason.
    void Prever(qsizetype cuantos) { lugares.reserve(std::min(cuantos, MAX_PREVISTOS)); }

    /// @return the place of `texto`, from 0; a use of the text is counted
    quint32 Lugar(const QString& texto);

    /// Writes the table and the places of its texts in the stream. A text that does not fit in a
    /// record goes on in the next: its head stays with its first character, and the rest of a text
    /// that is cut begins with its flags again.
    void Escribir(Salida_Biff& salida) const;

private:
    static constexpr qsizetype MAX_PREVISTOS = 1 << 18;

    QHash<QString, quint32> lugares;
    std::vector<QString> textos;
    quint32 usos = 0;
};
