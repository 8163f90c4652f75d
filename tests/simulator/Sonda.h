#pragma once

#include "simulator/Aparato.h"

/// Takes what an instrument sends and says.
struct Sonda {
    QByteArray salida;
    QStringList notas;

    simulador::Aparato::Salida Salida()
    {
        return [this](const QByteArray& bytes) { salida += bytes; };
    }
    simulador::Aparato::Nota Nota()
    {
        return [this](const QString& texto) { notas << texto; };
    }
    /// @return what came out since the last call
    QByteArray Tomar() { return std::exchange(salida, QByteArray()); }
};

/// Feeds bytes one by one and gives back what they bring.
inline QByteArray Dar(simulador::Aparato& aparato, Sonda& sonda, const QByteArray& bytes)
{
    for (const char c : bytes)
        aparato.Recibir(c);
    return sonda.Tomar();
}
