#pragma once

#include <functional>
#include <QByteArray>
#include <QList>
#include <QString>

namespace simulador {

/// Control characters of the lines.
inline constexpr char STX = 2, ETX = 3, EOT = 4, ENQ = 5, ACK = 6, LF = 10, CR = 13, SI = 15,
                      NAK = 21;

/// An instrument at its end of the cable: fed one byte at a time, given an output. It knows no port
/// and no clock; whoever drives it says that time has passed.
class Aparato {
public:
    /// Bytes that go out to the PC, in order.
    using Salida = std::function<void(const QByteArray&)>;
    /// A line for whoever watches ("trama 3 repetida").
    using Nota = std::function<void(const QString&)>;

    Aparato(Salida a_pc, Nota a_quien_mira) : salida(std::move(a_pc)), nota(std::move(a_quien_mira))
    {
    }
    virtual ~Aparato() = default;
    Aparato(const Aparato&) = delete;
    Aparato& operator=(const Aparato&) = delete;

    /// The PC has opened its port: whatever was under way is forgotten and the field book is ready
    /// to go out from its beginning.
    virtual void Abrir() = 0;
    /// A byte from the PC.
    virtual void Recibir(char c) = 0;
    /// Time that passed since the last call, milliseconds.
    virtual void Pasar(int) {}

    /// True from the end of a transfer, in either direction, until the next `Abrir`.
    bool Terminado() const { return terminado; }
    /// What an upload sent, when one has ended: the data text as it came, without frames.
    QByteArray Recibido() const { return recibido; }
    /// The same as the records of a field book, one a line.
    virtual QList<QByteArray> Registros_Recibidos() const = 0;

protected:
    void Enviar(const QByteArray& bytes) const { salida(bytes); }
    void Anotar(const QString& texto) const { nota(texto); }

    bool terminado = false;
    QByteArray recibido;

private:
    Salida salida;
    Nota nota;
};

} // namespace simulador
