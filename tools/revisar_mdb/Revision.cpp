#include "tools/revisar_mdb/Revision.h"

namespace Revision_Mdb {

namespace {
constexpr qsizetype QUEJAS_MAXIMAS = 200;
}

Revision::Revision(QByteArrayView bytes) : fichero(bytes), duenos(bytes.size() / PAGINA)
{
    if (bytes.size() % PAGINA != 0)
        quejas << QStringLiteral("el fichero no acaba en una página entera");
}

Bytes Revision::Pagina(quint32 numero) const
{
    if (numero >= Paginas()) throw Rotura{QStringLiteral("no hay página %1").arg(numero)};
    return fichero.sliced(numero * PAGINA, PAGINA);
}

void Revision::Queja(quint32 pagina, const QString& texto)
{
    if (quejas.size() < QUEJAS_MAXIMAS)
        quejas << QStringLiteral("página %1: %2").arg(pagina).arg(texto);
}

bool Revision::Exigir(bool bien, quint32 pagina, const QString& texto)
{
    if (!bien) Queja(pagina, texto);
    return bien;
}

void Revision::Igual(quint64 leido, quint64 esperado, quint32 pagina, const QString& que)
{
    if (leido != esperado)
        Queja(pagina,
              QStringLiteral("%1: hay %2, debe haber %3").arg(que).arg(leido).arg(esperado));
}

void Revision::Reclamar(quint32 pagina, const QString& dueno)
{
    if (pagina >= Paginas()) return Queja(pagina, "no existe y es de " + dueno);
    QString& actual = duenos[pagina];
    if (!actual.isEmpty()) Queja(pagina, "es de " + actual + " y de " + dueno);
    actual = dueno;
}

void Revision::Revisar_Duenos()
{
    for (quint32 p = 0; p < Paginas(); ++p)
        Exigir(!duenos[p].isEmpty(), p, "no es de nadie");
}

} // namespace Revision_Mdb
