#pragma once

// The form: docs/formas/krt800.md

#include "transfer/enlace/Receptor.h"

/// Receives from a KRT800: plain text without frames or answers, ended by EOT.
class Receptor_KRT800 : public Receptor {
public:
    Respuesta_Recepcion Recibir(char caracter) override;
    /// The lines, each ended by CR LF, also those that came ended by CR or LF alone. A last line
    /// without an end is one when the instrument has ended its data; broken off it is none, since
    /// half a coordinate is a wrong one.
    QString Rescatable() const override;
    Faltas_Recepcion Faltas() const override;
    Faltas_Recepcion Faltas_De_Rescate() const override;

private:
    bool acabada = false;
};
