#pragma once

// The form: docs/formas/krt300.md

#include "transfer/enlace/Receptor.h"

/// Receives from a KRT300 or PX7. A frame is STX, data, one sequence digit, three digits of
/// checksum over data and digit, ETX; bytes between frames are ignored. A good frame is answered
/// ACK and its data added to the buffer; a bad one is answered SI (15) and dropped: that is what
/// the instruments of the family have been served with, although the upload answers NAK. EOT is
/// answered ACK and ends the reception wherever it stands, also inside a frame, which is lost.
class Receptor_KRT300 : public Receptor {
public:
    Respuesta_Recepcion Recibir(char caracter) override;
    /// Without the last record, which may lack its last figures.
    QString Rescatable() const override;

private:
    Respuesta_Recepcion Cerrar_Trama();

    bool en_trama = false;
    QString trama; ///< inner text of the open frame
};
