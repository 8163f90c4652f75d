#pragma once

#include "export/mdb/Formato_Jet.h"

#include <optional>

namespace Jet {

/// Owners of data pages that belong to no table: usage maps, page 1 and the long values ("LVAL").
constexpr quint32 DUENO_MAPAS = 0;
constexpr quint32 DUENO_GLOBAL = 1;
constexpr quint32 DUENO_LARGOS = 0x4C41564C;

/// A page of rows, packed from its end downwards; a table of their offsets grows from its head.
class Pagina_Datos {
public:
    /// Most rows of one page: a row's number has one byte, and the engine leaves one value out.
    static constexpr int FILAS_MAXIMAS = 255;
    /// Longest row of an empty page.
    static constexpr int FILA_MAXIMA = TAMANO_PAGINA - 14 - 2;

    /// @param dueno  page of the table's definition, or one of the owners above
    explicit Pagina_Datos(quint32 dueno);

    /// @return the row's number in the page, or nothing when it no longer fits
    std::optional<quint32> Anadir(QByteArrayView fila);
    bool Cabe(qsizetype largo) const { return filas < FILAS_MAXIMAS && largo + 2 <= Libre(); }
    bool Vacia() const { return filas == 0; }
    quint32 Filas() const { return static_cast<quint32>(filas); }

    /// Stamp of the first page of a chained long value.
    void Sellar(quint32 sello);
    /// The page with its counts set.
    const Pagina& Acabada();
    /// Empties the page for the next rows of the same owner.
    void Vaciar();

private:
    int Libre() const;

    Pagina pagina;
    int filas = 0;
    int fondo = TAMANO_PAGINA; // offset of the lowest row
};

} // namespace Jet
