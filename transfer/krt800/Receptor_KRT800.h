#pragma once

// The form: docs/formas/krt800.md

#include "transfer/enlace/Receptor.h"

/// Receives from a KRT800: plain text without frames or answers, ended by EOT.
class Receptor_KRT800 : public Receptor {
public:
    Respuesta_Recepcion Recibir(char caracter) override;
};
