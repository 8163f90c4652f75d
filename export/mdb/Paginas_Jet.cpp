#include "export/mdb/Paginas_Jet.h"

#include "core/Ficheros.h"

namespace Jet {

namespace {

constexpr qsizetype LOTE = qsizetype(64) * TAMANO_PAGINA;

// A device that takes fewer bytes than it was given is full. Otherwise a file knows why it failed.
Error_Ejecucion Fallo(const QIODevice& salida, bool lleno)
{
    if (lleno) return Error_Ejecucion(3026);
    if (const auto* fichero = qobject_cast<const QFileDevice*>(&salida)) return Fallo_De(*fichero);
    return Error_Ejecucion::Con(57, salida.errorString());
}

} // namespace

Error_Ejecucion Fallo_De(const QFileDevice& fichero)
{
    constexpr int DISCO_LLENO = 61; // what the engine counts as 3026
    const Error_Ejecucion e = Ficheros::Error_De(fichero);
    return e.numero == DISCO_LLENO ? Error_Ejecucion::Con(3026, fichero.errorString()) : e;
}

quint32 Paginas::Reservar()
{
    return Reservar(1);
}

quint32 Paginas::Reservar(quint32 cuantas)
{
    if (cuantas > PAGINAS_MAXIMAS - reservadas) throw Error_Ejecucion(3049);
    const quint32 numero = reservadas;
    reservadas += cuantas;
    return numero;
}

void Paginas::Escribir(quint32 numero, const Pagina& pagina)
{
    if (lote.size() >= LOTE || numero != primera + lote.size() / TAMANO_PAGINA) Vaciar();
    if (lote.isEmpty()) {
        lote.reserve(LOTE);
        primera = numero;
    }
    lote.append(QByteArrayView(pagina.data(), TAMANO_PAGINA));
}

void Paginas::Vaciar()
{
    if (lote.isEmpty()) return;
    if (!salida.seek(qint64(primera) * TAMANO_PAGINA)) throw Fallo(salida, false);
    const qint64 escritos = salida.write(lote);
    if (escritos != lote.size()) throw Fallo(salida, escritos >= 0);
    lote.resize(0);
}

} // namespace Jet
