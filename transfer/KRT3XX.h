#pragma once

#include "transfer/Recepcion.h"

/// Receives one byte of a KRT300 or PX7. A frame is STX, data, one sequence digit, three digits of
/// checksum over data and digit, ETX; bytes between frames are ignored. A good frame is answered ACK
/// and its data added to `Recepcion.Buffer`; a bad one is answered SI (15) and dropped: that is what
/// the instruments of the family have been served with, although the upload answers NAK. EOT ends
/// the reception wherever it stands, also inside a frame, which is lost.
void Recibir_KRT300(char caracter, const Salida_Recepcion& comm);
