#pragma once

#include "tools/revisar_mdb/Bytes.h"

#include <QList>
#include <QStringList>

namespace Revision_Mdb {

constexpr qsizetype PAGINA = 4096;

/// Kinds of page: their first byte.
enum Clase : quint8 { DATOS = 1, DEFINICION = 2, HOJA = 4, BITMAP = 5 };

/// A row of a data page, as pointers name it: page and row number in one word.
struct Puntero {
    explicit Puntero(quint32 crudo) : pagina(crudo >> 8), fila(crudo & 0xFF) {}
    quint32 pagina;
    quint32 fila;
};

/// The file under examination, what is wrong with it, and who has claimed each page: every page
/// must in the end have exactly one owner.
class Revision {
public:
    explicit Revision(QByteArrayView fichero);

    quint32 Paginas() const { return static_cast<quint32>(duenos.size()); }
    /// @throws Rotura when the file has no such page
    Bytes Pagina(quint32 numero) const;

    void Queja(quint32 pagina, const QString& texto);
    /// Complains unless `bien`. @return `bien`
    bool Exigir(bool bien, quint32 pagina, const QString& texto);
    /// Complains unless what was read is what was expected.
    void Igual(quint64 leido, quint64 esperado, quint32 pagina, const QString& que);
    /// Runs one step of the examination; where it can't read on, that is one complaint more.
    template <class Paso> void Paso_Sobre(quint32 pagina, Paso paso)
    {
        try {
            paso();
        } catch (const Rotura& r) {
            Queja(pagina, r.texto);
        }
    }

    void Reclamar(quint32 pagina, const QString& dueno);
    /// Complains of the pages that nobody claimed.
    void Revisar_Duenos();

    /// Complaints, in the order found; no more than a readable number of them.
    const QStringList& Quejas() const { return quejas; }

private:
    QByteArrayView fichero;
    QList<QString> duenos;
    QStringList quejas;
};

} // namespace Revision_Mdb
