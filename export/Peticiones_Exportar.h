#pragma once

#include "formats/Peticiones_Formatos.h"

#include <functional>

/// The dialogs that the export opens, as questions: the windows and the tests set them.
struct Peticiones_Exportar {
    /// Shows `FrmDXF` modally; empty while this version draws nothing.
    std::function<void(const Trabajo_Exportar&)> Abrir_DXF;
};
Peticiones_Exportar& Peticiones_De_Exportar();
