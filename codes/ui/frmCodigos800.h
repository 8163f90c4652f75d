#pragma once

#include "codes/Mantenimiento_B.h"
#include "core/ui/Ventana.h"

class Modelo_Conjunto;
class Panel_Librerias;
class QTableView;

/// The code libraries of series B, one at a time, in a grid that is bound to the store. Enter and
/// F2 open the selected code, Insert and Delete do what their buttons do.
class frmCodigos800 : public Ventana {
    Q_OBJECT
public:
    frmCodigos800();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Hacer();
    void Mostrar_Todo();

    Mantenimiento_B modelo;
    Modelo_Conjunto* datCodigos;
    QTableView* DBGrid1;
    Panel_Librerias* panel;
};
