#include "codes/Codigos.h"

#include "core/Basico.h"
#include "core/Trozos.h"

#include <algorithm>

namespace {

constexpr char16_t PRIMERO = 32, ULTIMO = 126;

QString No_Aceptado(const QString& caracter)
{
    return QStringLiteral("El carácter '%1' no es aceptado por el aparato").arg(caracter);
}

} // namespace

QStringList Separar_Codigos(const QString& codigos)
{
    QStringList lista = codigos.split(QChar(SEP_LISTA));
    // The first item of a list is empty; one that isn't is a code all the same, and not lost.
    if (lista.first().isEmpty()) lista.removeFirst();
    while (!lista.isEmpty() && Basico::Trim(lista.last()).isEmpty())
        lista.removeLast();
    return lista;
}

QString Unir_Codigos(const QStringList& codigos)
{
    QString texto = QStringLiteral("");
    for (const QString& codigo : codigos)
        texto += QChar(SEP_LISTA) + codigo;
    return texto;
}

QStringList Solo_Codigos(const Lista_De_Codigos& codigos)
{
    QStringList textos;
    for (const Codigo_Libreria& c : codigos)
        textos << c.codigo;
    return textos;
}

Lista_De_Codigos Como_Libreria(const QStringList& codigos)
{
    Lista_De_Codigos lista;
    for (const QString& codigo : codigos)
        lista.append({.codigo = codigo, .capa = {}});
    return lista;
}

QString Caracter_No_Aceptado(const QString& texto)
{
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (c >= PRIMERO && c <= ULTIMO) continue;
        return texto.mid(i, c.isHighSurrogate() ? 2 : 1);
    }
    return {};
}

QString Motivo_De_Texto(const Serie_Librerias& serie, const QString& texto)
{
    if (const QString malo = Caracter_No_Aceptado(texto); !malo.isEmpty()) return No_Aceptado(malo);
    if (texto.contains(serie.reservado))
        return QStringLiteral("El carácter '%1' es reservado").arg(serie.reservado);
    return {};
}

QString Motivo_De_Codigo(const Serie_Librerias& serie, const Codigo_Libreria& codigo,
                         const QList<Entidad>& entidades)
{
    for (const QString& texto : {codigo.codigo, codigo.capa})
        if (QString motivo = Motivo_De_Texto(serie, texto); !motivo.isEmpty()) return motivo;
    if (codigo.codigo.size() > serie.largo_codigo)
        return QStringLiteral("El código '%1' tiene más de %2 caracteres")
            .arg(codigo.codigo)
            .arg(serie.largo_codigo);
    if (codigo.capa.size() > serie.largo_capa)
        return QStringLiteral("La capa '%1' tiene más de %2 caracteres")
            .arg(codigo.capa)
            .arg(serie.largo_capa);
    if (serie.serie != Serie::B) return {};
    if (codigo.codigo.isEmpty()) return QStringLiteral("El código no se puede dejar en blanco");
    if (std::ranges::find(entidades, codigo.entidad, &Entidad::indice) == entidades.end())
        return QStringLiteral("No existe la entidad %1").arg(codigo.entidad);
    return {};
}

void Ordenar_Codigos(Lista_De_Codigos& codigos)
{
    std::ranges::stable_sort(codigos, [](const Codigo_Libreria& a, const Codigo_Libreria& b) {
        if (a.codigo.isEmpty() != b.codigo.isEmpty()) return b.codigo.isEmpty();
        return QString::compare(a.codigo, b.codigo, Qt::CaseInsensitive) < 0;
    });
}

int Buscar_Codigo(const Lista_De_Codigos& codigos, const QString& texto, int desde)
{
    const int cuantos = int(codigos.size());
    for (int i = 0; i < cuantos; ++i) {
        const int fila = (qMax(desde, 0) + i) % cuantos;
        if (codigos[fila].codigo.contains(texto, Qt::CaseInsensitive)) return fila;
    }
    return -1;
}
