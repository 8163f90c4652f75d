#pragma once

#include "transfer/Recepcion.h"

/// Receives one byte of a KRT800: plain text without frames or answers, ended by EOT.
void Recibir_KRT800(char caracter, const Salida_Recepcion& comm);
