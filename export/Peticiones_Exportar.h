#pragma once

#include "export/dxf/Conversion_DXF.h"

/// The dialogs that the export opens, as questions: the windows and the tests set them.
struct Peticiones_Exportar {
    /// Shows `FrmDXF` modally; empty while this version draws nothing.
    std::function<void(const Trabajo_Exportar&)> Abrir_DXF;
    /// The same for any source of a drawing.
    std::function<void(const Origen_Dibujo&)> Mostrar_DXF = [](const Origen_Dibujo&) {};
};
Peticiones_Exportar& Peticiones_De_Exportar();
