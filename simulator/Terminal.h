#pragma once

#include <QByteArray>
#include <QString>

namespace simulador {

/// A pseudo-terminal whose slave side is the PC's serial port, with a link of a chosen name to it.
/// Not portable: the simulator runs where there are pseudo-terminals.
class Terminal {
public:
    Terminal() = default;
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Makes the pseudo-terminal and the link. An old link of that name is replaced, a file is not.
    /// @return an empty text, or why it failed, in Spanish
    QString Crear(const QString& enlace);

    /// Waits for something to happen, at most `ms` milliseconds.
    void Esperar(int ms, bool por_escribir);
    /// True while a program has the slave side open.
    bool Abierta();
    /// Bytes that have come; empty when there are none.
    QByteArray Leer();
    /// @return how many of the bytes were taken
    qsizetype Escribir(const QByteArray& bytes);
    /// Cuts the cable: the PC's side sees its port vanish.
    void Cortar();

    /// Path of the slave side.
    QString Ruta() const { return ruta; }

private:
    QString Abrir_Par();
    QString Enlazar(const QString& enlace);

    int maestro = -1;
    QString ruta, enlace;
};

} // namespace simulador
