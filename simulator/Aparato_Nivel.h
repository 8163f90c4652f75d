#pragma once

// The form: docs/formas/nv400.md

#include "simulator/Aparato.h"
#include "simulator/Fallos.h"

namespace simulador {

/// An NV400: lines with a checksum character, each answered by a line of the PC. It starts at an
/// ENQ or at the PC's poll, a refusal line. A record of the field book is the payload of a line;
/// its last comma is supplied when it is missing, checksum and line end always.
class Aparato_Nivel : public Aparato {
public:
    struct Ajustes {
        std::optional<QList<QByteArray>> libreta; ///< its field book, if it has one
        bool repetir = true; ///< after a refusal: the same line again, or the next one
        Fallos fallos;       ///< of lines: the first record is line 1
    };
    Aparato_Nivel(const Ajustes& ajustes, Salida salida, Nota nota);

    void Abrir() override;
    void Recibir(char c) override;
    QList<QByteArray> Registros_Recibidos() const override { return {}; }

private:
    enum class Estado { Espera, Enviando, Callado };
    void Contestado(bool bien);
    void Empezar();
    void Enviar_Linea();
    int Ultima() const;

    Ajustes ajustes;
    Fallos pendientes;
    Estado estado = Estado::Espera;
    int linea = 0;        ///< 0 start line, 1... the records, then the end line
    int ruidosa = 0;      ///< last line that had its noise
    bool enviada = false; ///< the line under way has gone out itself, and not its noise alone
    QByteArray entrada;   ///< the PC's line so far
};

/// Checksum of a level's line: sum of the bytes, low six bits, plus 32, as a character.
char Suma_De_Linea(const QByteArray& carga);

} // namespace simulador
