#pragma once

#include "core/ui/Ventana.h"
#include "export/dxf/Dialogo_ExportDXF.h"

class QLineEdit;

/// Makes a drawing of a text list of points.
class ExportDXF : public Ventana {
    Q_OBJECT
public:
    ExportDXF();

private:
    void Mostrar_Modelo();

    Dialogo_ExportDXF modelo;
    QLineEdit *TxEntrada, *TxSalida;
};
