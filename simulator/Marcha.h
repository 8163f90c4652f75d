#pragma once

#include "simulator/Aparato.h"
#include "simulator/Linea.h"
#include "simulator/Opciones.h"
#include "simulator/Terminal.h"

#include <memory>

namespace simulador {

/// The instrument that the options ask for. @param registros  its field book, if it has one
std::unique_ptr<Aparato> Hacer_Aparato(const Opciones& opciones,
                                       const std::optional<QList<QByteArray>>& registros,
                                       Aparato::Salida salida, Aparato::Nota nota);

/// The instrument at work: pseudo-terminal, cable and machine, moved in turns.
class Marcha {
public:
    explicit Marcha(const Opciones& opciones);

    /// Reads the field book and makes the port. @return an empty text, or why not, in Spanish
    QString Preparar();
    /// One turn: waits a little, takes and gives what there is. @return false when it is over
    bool Turno();
    /// Exit status once `Turno` has said that it is over.
    int Estado() const { return estado; }
    /// Path of the port behind the link.
    QString Ruta() const { return terminal.Ruta(); }

private:
    void Ver_Apertura();
    void Tomar();
    void Dar();
    bool Guardar();
    bool Ha_Acabado();

    Opciones opciones;
    Terminal terminal;
    Linea linea;
    std::unique_ptr<Aparato> aparato;
    qint64 antes = 0;     ///< clock at the last turn
    bool abierta = false; ///< the PC has its port open
    bool contada = false; ///< the end of this transfer has been seen to
    bool hecha = false;   ///< a transfer has ended since the start
    qint64 fin = 0;       ///< clock when the last one ended
    int estado = 1;
};

} // namespace simulador
