#pragma once

// The form: docs/formas/krt300.md

#include "transfer/enlace/Emisor.h"

/// Sends to a KRT300 or PX7 in acknowledged frames. Coordinates: opening, header, blocks, closing;
/// a library: blocks, closing. Each ACK brings the next frame; the test for the end is strict, so
/// that a text of whole blocks is followed by one of blanks. A NAK brings the same frame again after
/// a pause, five times; the sixth ends the upload. Ten seconds of silence count like a refusal and
/// send nothing.
class Emisor_KRT300 : public Emisor {
public:
    explicit Emisor_KRT300(const Datos_Envio& datos);

    qint64 Maximo() const override;
    Paso_Envio Empezar_Envio() override;
    Paso_Envio Siguiente_Envio(char caracter) override;
    int Plazo() const override;
    Paso_Envio Vencer() override;
    QString Resumen() const override;

private:
    Paso_Envio Aceptada();
    Paso_Envio Rechazada();
    Paso_Envio Mandar(const QString& trama, const QString& nombre);
    Paso_Envio Mandar_Bloque();

    Datos_Envio envio;
    qint64 bloque = 1; ///< the next one
    bool cabecera_enviada = false;
    bool acabado = false;
    int intentos = 0;     ///< refusals and time-outs since the last ACK
    QString ultima, cual; ///< last frame, and how the user is told of it
    qint64 rechazos = 0, repeticiones = 0;
};
