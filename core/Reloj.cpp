#include "core/Reloj.h"

#include <QThread>

namespace {
Reloj reloj_de_la_maquina;
Reloj* reloj_en_uso = nullptr;
} // namespace

Reloj::~Reloj()
{
    if (reloj_en_uso == this) reloj_en_uso = nullptr;
}

QDateTime Reloj::Ahora() const
{
    return QDateTime::currentDateTime();
}

int Reloj::Espera(int ms) const
{
    return ms;
}

void Reloj::Dormir(int ms) const
{
    QThread::msleep(static_cast<unsigned long>(Espera(ms)));
}

Reloj_Rapido::Reloj_Rapido(int d, const QDateTime& f) : divisor(d), fijo(f) {}

QDateTime Reloj_Rapido::Ahora() const
{
    return fijo.isValid() ? fijo : Reloj::Ahora();
}

int Reloj_Rapido::Espera(int ms) const
{
    return ms / divisor;
}

Reloj& Reloj_Actual()
{
    return reloj_en_uso ? *reloj_en_uso : reloj_de_la_maquina;
}

Reloj* Poner_Reloj(Reloj* nuevo)
{
    Reloj* const anterior = reloj_en_uso;
    reloj_en_uso = nuevo;
    return anterior;
}
