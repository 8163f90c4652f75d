#pragma once

#include <optional>
#include <QByteArray>

namespace simulador {

/// The cable on its way to the PC: holds back what an instrument sends to the pace of the line,
/// cuts it into pieces and cuts the cable. Times are milliseconds of any clock that never runs
/// back.
class Linea {
public:
    struct Ajustes {
        int baudios = 0;             ///< bits a second, ten to a character; 0: no pace
        int trozo = 0;               ///< bytes of a piece; 0: all that is due
        int pausa = 2;               ///< between pieces, milliseconds
        std::optional<qint64> corte; ///< bytes in either direction after which the cable is cut
    };
    explicit Linea(const Ajustes& dados) : ajustes(dados) {}

    /// Takes bytes of the instrument.
    void Poner(const QByteArray& bytes);
    /// @return the bytes that may go out at `ahora`; they are gone from the line
    QByteArray Sacar(qint64 ahora);
    /// Gives back bytes that the port did not take, to go out first.
    void Devolver(const QByteArray& bytes);
    /// Counts bytes of the PC towards the cut. @return how many of them came through
    qsizetype Llegan(qsizetype bytes);

    bool Vacia() const { return cola.isEmpty(); }
    bool Cortada() const { return ajustes.corte && pasados >= *ajustes.corte; }
    /// Forgets what has not gone out; the count towards the cut stays.
    void Vaciar() { cola.clear(); }

private:
    qsizetype Permitidos(qint64 ahora) const;

    Ajustes ajustes;
    QByteArray cola;
    qint64 pasados = 0;   ///< bytes of both directions
    qint64 salidos = 0;   ///< bytes since `inicio`
    qint64 inicio = 0;    ///< when the line began to be busy
    qint64 siguiente = 0; ///< when the next piece may go
};

} // namespace simulador
