#pragma once

// The form: docs/formas/krt300.md

#include "simulator/Aparato.h"
#include "simulator/Fallos.h"

namespace simulador {

/// A KRT300 or a PX7: framed data with a checksum, each frame acknowledged.
///
/// Sending its field book: waits for ENQ, then STX, 128 characters of data, a sequence digit, a
/// checksum of three digits, ETX; an ACK brings the next frame, a code 15 the same one again.
/// Behind the last frame an EOT, and its ACK is the end. The records travel as one text, a "_"
/// ahead of each.
///
/// Receiving an upload: opening and header frame (only ahead of points), frames of the same build
/// in the other direction, closing frame; a good one is answered with ACK, a bad one with NAK.
class Aparato_Tramas : public Aparato {
public:
    struct Ajustes {
        std::optional<QList<QByteArray>> libreta; ///< its field book, if it has one
        int bloque = 128;                         ///< characters of data in a frame
        bool repetir = true;    ///< after a refusal: the same frame again, or the next one
        bool fin_linea = false; ///< CR LF behind each frame, as some of the family send it
        Fallos fallos;
    };
    Aparato_Tramas(const Ajustes& ajustes, Salida salida, Nota nota);

    void Abrir() override;
    void Recibir(char c) override;
    QList<QByteArray> Registros_Recibidos() const override;

private:
    enum class Estado { Espera, Trama_Enviada, Eot_Enviado, Callado, En_Trama };

    int Tramas() const;
    int Ultima() const;
    QByteArray Bloque(int n) const;
    void Enviar_Trama(int n);
    void Seguir_Envio(char c);
    void Siguiente();

    void Cerrar_Trama();
    void Contestar_Bloque();
    void Aceptar();
    void Rechazar(const QString& motivo);

    Ajustes ajustes;
    QByteArray datos; ///< the records joined, as they are cut into frames
    Estado estado = Estado::Espera;
    int trama = 0;     ///< number of the frame under way, from 1
    Fallos pendientes; ///< faults still to be made

    QByteArray entrada;       ///< inner bytes of the frame that comes in
    QByteArray ultimo_bloque; ///< to know a repeated frame
    int bloques = 0;          ///< accepted blocks of the upload
};

/// Checksum of a frame: exclusive or of all bytes, three decimal digits.
QByteArray Suma_De_Trama(const QByteArray& bytes);

} // namespace simulador
