#pragma once

// The form: docs/formas/krt300.md

#include "transfer/enlace/Receptor.h"

/// Receives from a KRT300 or PX7. A frame is STX, data, one sequence digit, three digits of
/// checksum over data and digit, ETX; bytes between frames are ignored. A good frame is answered
/// ACK and its data added to the buffer; a bad one is answered SI (15) and dropped: that is what
/// the instruments of the family have been served with, although the upload answers NAK. EOT is
/// answered ACK and ends the reception wherever it stands, also inside a frame, which is lost.
///
/// Whether a refused frame came again is told by the digits, which count from 0 to 9 and over: the
/// next good frame carries the one behind the last good frame's digit, or so many frames too far.
/// The first good frame has none before it; there, and with an instrument that doesn't count, the
/// refused frame must be recognisable in the good one (`Es_Repeticion`), unless the second good
/// frame shows that the instrument does count.
class Receptor_KRT300 : public Receptor {
public:
    Respuesta_Recepcion Recibir(char caracter) override;
    Faltas_Recepcion Faltas() const override;

private:
    Respuesta_Recepcion Cerrar_Trama();
    void Anotar_Rechazada(const QString& mala);
    void Repasar_Rechazadas(const QString& buena);

    bool en_trama = false;
    bool acabada = false;
    QString trama;                    ///< inner text of the open frame
    QStringList rechazadas;           ///< refused since the last good frame, each of them once
    int perdidas = 0, en_duda = 0;    ///< refused for good; so, unless the digits turn out to count
    int buenas = 0, ultima_cifra = 0; ///< good frames, and the digit of the last one
};
