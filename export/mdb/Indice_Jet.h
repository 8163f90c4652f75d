#pragma once

#include "export/mdb/Paginas_Jet.h"

#include <QList>
#include <QStringView>

namespace Jet {

/// An index of one leaf, gathered in any order and written in the order of the entries' bytes.
class Hoja_Indice {
public:
    /// @param dueno  page of the table's definition
    explicit Hoja_Indice(quint32 dueno);

    /// Key parts, to be joined in the order of the index's columns.
    static QByteArray Clave(quint32 valor);
    static QByteArray Clave(QStringView nombre);

    /// Bytes that an entry of key `clave` takes, and whether so many more still fit.
    static qsizetype Largo(const QByteArray& clave) { return clave.size() + LARGO_PUNTERO; }
    bool Cabe(qsizetype bytes) const;
    /// Adds an entry, which must fit. @param clave  joined key; the row is `fila` of page `pagina`
    void Anadir(const QByteArray& clave, quint32 pagina, quint32 fila);
    /// Whether a key is there already.
    bool Contiene(const QByteArray& clave) const;
    /// Different keys among the entries.
    quint32 Claves() const;

    Pagina Acabada() const;

private:
    static constexpr qsizetype LARGO_PUNTERO = 4;

    quint32 dueno;
    QList<QByteArray> entradas;
    qsizetype usados = 0;
};

} // namespace Jet
