#pragma once

#include <QString>

/// What `ExportDXF` holds: a text list of points and the drawing that is to be made of it.
class Dialogo_ExportDXF {
public:
    QString entrada, salida; ///< `TxEntrada`, `TxSalida`

    /// `BtnElegir` and `BtnSalida`; a cancelled dialog leaves the name that stood there.
    void Elegir_Entrada();
    void Elegir_Salida();
    /// `BtnExportar`: hands both on to the drawing's dialog; beeps while one is missing.
    void Exportar() const;
};
