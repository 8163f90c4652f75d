#pragma once

#include <QByteArray>
#include <QString>

/// Control characters of the links.
namespace Control {
inline constexpr char STX = 2, ETX = 3, EOT = 4, ENQ = 5, ACK = 6, LF = 10, CR = 13, SI = 15,
                      NAK = 21;
}

/// What a received byte calls for.
struct Respuesta_Recepcion {
    QByteArray envia; ///< goes to the instrument, empty: nothing; ahead of what `fin` starts
    bool fin = false; ///< the instrument has ended its data
};

/// The receiving half of a family's link for one reception: fed byte by byte, it says what goes out
/// and keeps what was accepted. It knows no port, dialog or clock, and all its state is its own, so
/// that any number of receptions run beside each other: a journal is read while a download is under
/// way.
class Receptor {
public:
    Receptor() = default;
    Receptor(const Receptor&) = delete;
    Receptor& operator=(const Receptor&) = delete;
    virtual ~Receptor();

    /// Takes one byte as it came over the wire. Bytes behind the end of data have no meaning.
    virtual Respuesta_Recepcion Recibir(char caracter) = 0;

    /// Data that a session is made of, as characters of the program's page.
    const QString& Buffer() const { return buffer; }

    /// What is whole of a reception that breaks off here, without the record or line under way.
    virtual QString Rescatable() const;

protected:
    QString buffer;
};
