#pragma once

#include "transfer/enlace/Recepcion.h"

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

    /// All that was accepted, as data that a session can be made of, also of a reception that
    /// breaks off here.
    virtual QString Rescatable() const;

    /// What the wire has brought so far and the buffer doesn't hold.
    virtual Faltas_Recepcion Faltas() const { return {}; }
    /// The same against `Rescatable`.
    virtual Faltas_Recepcion Faltas_De_Rescate() const { return Faltas(); }

    /// The instrument has ended its data and there was none: what came are the wire's own lines.
    virtual bool Sin_Datos() const { return false; }

protected:
    QString buffer;
};

/// Tells whether a refused piece of the wire (`mala`) is the one that came good later (`buena`).
/// Both are given as data and check: it is when the data is the same and the check alone was
/// damaged, or when the check is the same and the data agrees in most of it.
/// Different data with one check is rare, and alike as well rarer still; a piece that isn't
/// recognised counts as not repeated, so that a doubt keeps the journal.
bool Es_Repeticion(QStringView datos_mala, QStringView suma_mala, QStringView datos_buena,
                   QStringView suma_buena);
