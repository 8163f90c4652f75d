#pragma once

#include <QDateTime>

/// The one source of time. Waits and timer intervals ask it, so that tests and the command-line
/// tool run the same code on a fast clock.
class Reloj {
public:
    Reloj() = default;
    Reloj(const Reloj&) = delete;
    Reloj& operator=(const Reloj&) = delete;
    virtual ~Reloj();

    /// Local time of the machine.
    virtual QDateTime Ahora() const;
    /// @return milliseconds of real time that stand for `ms` of the program's time
    virtual int Espera(int ms) const;
    /// Blocks the thread for `Espera(ms)`.
    void Dormir(int ms) const;
};

/// A clock whose waits are `divisor` times shorter, and whose date can be fixed.
class Reloj_Rapido : public Reloj {
public:
    explicit Reloj_Rapido(int divisor, const QDateTime& fijo = {});
    QDateTime Ahora() const override;
    int Espera(int ms) const override;

private:
    int divisor;
    QDateTime fijo;
};

/// The clock in use; the machine's unless another has been put.
Reloj& Reloj_Actual();
/// Puts another clock in use (null: the machine's again). @return the one that was
Reloj* Poner_Reloj(Reloj* nuevo);
