#include "simulator/Linea.h"

#include <algorithm>

namespace {
constexpr int BITS_CARACTER = 10;
}

void simulador::Linea::Poner(const QByteArray& bytes)
{
    // A line that stood idle starts to count anew: the pace is not saved up.
    if (cola.isEmpty()) inicio = -1;
    cola += bytes;
}

qsizetype simulador::Linea::Permitidos(qint64 ahora) const
{
    qint64 n = cola.size();
    if (ajustes.baudios > 0)
        n = std::min(n, (ahora - inicio) * ajustes.baudios / (1000LL * BITS_CARACTER) - salidos);
    if (ajustes.trozo > 0) n = ahora < siguiente ? 0 : std::min<qint64>(n, ajustes.trozo);
    if (ajustes.corte) n = std::min(n, *ajustes.corte - pasados);
    return std::max<qint64>(n, 0);
}

QByteArray simulador::Linea::Sacar(qint64 ahora)
{
    if (inicio < 0) {
        inicio = ahora;
        salidos = 0;
    }
    QByteArray bytes = cola.left(Permitidos(ahora));
    if (bytes.isEmpty()) return {};
    cola.remove(0, bytes.size());
    salidos += bytes.size();
    pasados += bytes.size();
    siguiente = ahora + ajustes.pausa;
    return bytes;
}

void simulador::Linea::Devolver(const QByteArray& bytes)
{
    cola.prepend(bytes);
    salidos -= bytes.size();
    pasados -= bytes.size();
}

qsizetype simulador::Linea::Llegan(qsizetype bytes)
{
    const qsizetype libres =
        ajustes.corte ? std::clamp<qsizetype>(*ajustes.corte - pasados, 0, bytes) : bytes;
    pasados += libres;
    return libres;
}
