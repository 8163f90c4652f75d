#pragma once

#include "export/mdb/Filas_Jet.h"

#include <QStringList>

namespace Jet {

/// Property blob of a table whose columns `columnas` have the property "AllowZeroLength". The
/// engine looks for it here and nowhere in the column's definition.
/// @return no bytes for no columns
QByteArray Propiedades(const QStringList& columnas);

/// Long values of one column, on pages of their own: short ones share a page, one that is longer
/// than a page is chained over several.
class Valores_Largos {
public:
    explicit Valores_Largos(Paginas& paginas) : salida(paginas), enteros(DUENO_LARGOS, paginas) {}

    /// Stores a value. @return what the record holds in its place
    /// @throws Error_Ejecucion as `Paginas`
    QByteArray Guardar(const QByteArray& valor);
    /// Writes the page under way. @throws Error_Ejecucion as `Paginas`
    void Acabar() { enteros.Acabar(); }

    /// All pages, and the one that takes further values.
    const Mapa& Propias() const { return enteros.Propias(); }
    Mapa Libres() const { return enteros.Libres(); }

private:
    QByteArray Guardar_En_Cadena(const QByteArray& valor);

    Paginas& salida;
    Filas enteros; // values that aren't chained
};

} // namespace Jet
