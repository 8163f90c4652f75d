#pragma once

// The form: docs/formas/krt800.md

#include "simulator/Aparato.h"
#include "simulator/Fallos.h"

namespace simulador {

/// A KRT800: plain text without frames, answers or checksums. Some time after the PC has opened its
/// port the field book goes out, each record with CR LF, and an EOT; a byte from the PC before that
/// makes it an upload, which lasts until an EOT.
class Aparato_Texto : public Aparato {
public:
    struct Ajustes {
        std::optional<QList<QByteArray>> libreta; ///< its field book, if it has one
        int retardo = 1500; ///< from the opening to the first byte, milliseconds
        Fallos fallos;      ///< of frames: `fin`, `eot`, `silencio`, `ruido`; a line is a frame
    };
    Aparato_Texto(const Ajustes& ajustes, Salida salida, Nota nota);

    void Abrir() override;
    void Recibir(char c) override;
    void Pasar(int ms) override;
    QList<QByteArray> Registros_Recibidos() const override;

private:
    enum class Estado { Cerrado, Abierto, Enviado, Recibiendo };
    void Enviar_Libreta();

    Ajustes ajustes;
    Estado estado = Estado::Cerrado;
    int esperado = 0;
};

} // namespace simulador
