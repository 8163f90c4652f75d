#include "export/mdb/Indice_Jet.h"

#include "export/mdb/Orden_Jet.h"

#include <algorithm>
#include <cstring>

namespace Jet {

namespace {

enum Cabecera_Indice { IND_BITS = 0x1B, IND_ENTRADAS = 0x1E0 };
constexpr qsizetype ESPACIO = TAMANO_PAGINA - IND_ENTRADAS;

constexpr char CON_VALOR = 0x7F;          // in front of every part of a key that isn't null
constexpr quint32 BIT_SIGNO = 0x80000000; // turned over, so that negative numbers come first

QByteArray Mayor_Primero(quint32 valor)
{
    QByteArray bytes(sizeof valor, Qt::Uninitialized);
    qToBigEndian(valor, bytes.data());
    return bytes;
}

// Order of bytes without a sign, the shorter of two equal ones first.
bool Antes(const QByteArray& a, const QByteArray& b)
{
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return static_cast<uchar>(x) < static_cast<uchar>(y);
    });
}

} // namespace

Hoja_Indice::Hoja_Indice(quint32 dueno_) : dueno(dueno_) {}

QByteArray Hoja_Indice::Clave(quint32 valor)
{
    return CON_VALOR + Mayor_Primero(valor ^ BIT_SIGNO);
}

QByteArray Hoja_Indice::Clave(QStringView nombre)
{
    return CON_VALOR + Pesos_Nombre(nombre);
}

bool Hoja_Indice::Cabe(qsizetype bytes) const
{
    return usados + bytes <= ESPACIO;
}

void Hoja_Indice::Anadir(const QByteArray& clave, quint32 pagina, quint32 fila)
{
    const QByteArray entrada = clave + Mayor_Primero(Puntero(pagina, fila));
    entradas.insert(std::lower_bound(entradas.begin(), entradas.end(), entrada, Antes), entrada);
    usados += entrada.size();
}

bool Hoja_Indice::Contiene(const QByteArray& clave) const
{
    return std::any_of(entradas.begin(), entradas.end(), [&](const QByteArray& entrada) {
        return QByteArrayView(entrada).chopped(LARGO_PUNTERO) == clave;
    });
}

quint32 Hoja_Indice::Claves() const
{
    quint32 distintas = 0;
    QByteArrayView anterior;
    for (const QByteArray& entrada : entradas) {
        const QByteArrayView clave = QByteArrayView(entrada).chopped(LARGO_PUNTERO);
        if (clave != anterior) ++distintas;
        anterior = clave;
    }
    return distintas;
}

Pagina Hoja_Indice::Acabada() const
{
    Pagina pagina = Pagina_Nueva(Clase_Pagina::HOJA_INDICE);
    Poner<quint16>(pagina, PAG_LIBRE, static_cast<quint16>(ESPACIO - usados));
    Poner<quint32>(pagina, PAG_DUENO, dueno);
    int fin = 0;
    for (const QByteArray& entrada : entradas) {
        std::memcpy(pagina.data() + IND_ENTRADAS + fin, entrada.data(),
                    static_cast<std::size_t>(entrada.size()));
        fin += static_cast<int>(entrada.size());
        pagina[static_cast<std::size_t>(IND_BITS + fin / 8)] |= static_cast<uchar>(1U << (fin % 8));
    }
    return pagina;
}

} // namespace Jet
