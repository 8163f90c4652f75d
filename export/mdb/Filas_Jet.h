#pragma once

#include "export/mdb/Mapa_Jet.h"
#include "export/mdb/Pagina_Datos.h"

namespace Jet {

/// Rows of one owner, streamed to data pages one behind the other: a page is written when the next
/// row no longer fits, so that only one page is held, however many rows there are.
class Filas {
public:
    struct Lugar {
        quint32 pagina;
        quint32 fila;
    };

    /// @param dueno  page of the table's definition, or `DUENO_LARGOS`
    Filas(quint32 dueno, Paginas& paginas) : salida(paginas), actual(dueno) {}
    /// With a first page reserved beforehand.
    Filas(quint32 dueno, Paginas& paginas, quint32 primera);

    /// @param fila  at most 4080 bytes
    /// @throws Error_Ejecucion as `Paginas`
    Lugar Anadir(QByteArrayView fila);
    /// Writes the page under way. @throws Error_Ejecucion as `Paginas`
    void Acabar();

    quint32 Cuantas() const { return cuantas; }
    /// Counts a page that was written elsewhere for the same owner.
    void Contar_Pagina(quint32 pagina) { propias.Marcar(pagina); }
    /// All pages, and the one with room for more: after a straight fill, the last.
    const Mapa& Propias() const { return propias; }
    Mapa Libres() const;

private:
    void Empezar(quint32 pagina);

    Paginas& salida;
    Pagina_Datos actual;
    quint32 numero = 0; // of the page under way; 0 before the first
    quint32 cuantas = 0;
    Mapa propias;
};

} // namespace Jet
