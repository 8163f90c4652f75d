#pragma once

#include "core/Error_Ejecucion.h"
#include "export/mdb/Formato_Jet.h"

#include <QFileDevice>

namespace Jet {

/// Most pages of a file: the engine opens none beyond 2 GB.
constexpr quint32 PAGINAS_MAXIMAS = 0x80000000U / TAMANO_PAGINA;

/// Why a file that failed to be written did: 3026 when the disk is full, 57 or 70 otherwise, with
/// the system's reason.
Error_Ejecucion Fallo_De(const QFileDevice& fichero);

/// The file as numbered pages on a device that can seek. Numbers are handed out first and pages
/// written when their content is known, in any order; neighbours are gathered and written together.
class Paginas {
public:
    /// @param destino  open for writing, empty; outlives this object
    explicit Paginas(QIODevice& destino) : salida(destino) {}

    /// @return the number of a page that nobody else has
    /// @throws Error_Ejecucion 3049 when the file has reached the engine's 2 GB
    quint32 Reservar();
    /// Several pages in a row. @return the first one's number
    quint32 Reservar(quint32 cuantas);
    /// Pages handed out so far, which is the file's size once all are written.
    quint32 Total() const { return reservadas; }

    /// @throws Error_Ejecucion 3026 on a full disk, 57 (or the system's reason) when the device
    ///         fails otherwise
    void Escribir(quint32 numero, const Pagina& pagina);
    /// Hands the gathered pages to the device. @throws as `Escribir`
    void Vaciar();

private:
    QIODevice& salida;
    quint32 reservadas = 0;
    quint32 primera = 0; // page at the head of `lote`
    QByteArray lote;
};

} // namespace Jet
