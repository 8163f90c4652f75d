#pragma once

#include "codes/Recepcion_Libreria.h"

#include <functional>

class Ficha_Codigo;
class Ficha_Libreria;

/// The dialogs and the conversations that the flows of the code libraries call for, as questions:
/// the windows, the command line and the tests set them. Each shows its dialog modally and returns
/// when it has closed, unless it says otherwise.
struct Peticiones_Codigos {
    /// `FrmCREDLib1` or `frmCodCrear800`, by the series of the model, and `FrmCodMan800`.
    std::function<void(Ficha_Libreria&)> Mostrar_Ficha = [](Ficha_Libreria&) {};
    std::function<void(Ficha_Codigo&)> Mostrar_Codigo = [](Ficha_Codigo&) {};
    /// `FrmCodRecibir`: where a received library goes; nothing when cancelled.
    std::function<std::optional<Destino_Libreria>()> Pedir_Destino = [] {
        return std::optional<Destino_Libreria>();
    };
    /// Gives the text of a library to `Frmsplash1` and starts an upload of kind 2.
    std::function<void(const QString& texto)> Enviar;
    /// Opens the port and shows the receiving dialog on operation 2, without blocking: `FrmSplash`
    /// for a reception that begins in the list of transfers, `FrmSplash2` for one that begins among
    /// the libraries. At its end `Guardar_Libreria` is to be called.
    std::function<void(const Destino_Libreria&)> Recibir_En_FrmSplash;
    std::function<void(const Destino_Libreria&)> Recibir_En_FrmSplash2;
};
Peticiones_Codigos& Peticiones_De_Codigos();
