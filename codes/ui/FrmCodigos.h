#pragma once

#include "codes/Mantenimiento_A.h"
#include "core/ui/Ventana.h"

class Panel_Librerias;
class QPushButton;
class QTableWidget;

/// The code libraries of series A, one at a time. Codes are typed straight into the grid too: F2 or
/// any letter changes the selected one, Insert and Delete do what their buttons do.
class FrmCodigos : public Ventana {
    Q_OBJECT
public:
    FrmCodigos();

protected:
    void closeEvent(QCloseEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Hacer();
    void Mostrar_Todo();
    void Mostrar_Codigos();
    void Codigo_Tecleado(int fila, int columna);

    Mantenimiento_A modelo;
    Panel_Librerias* panel;
    QTableWidget* MSF;
    QPushButton* BtnGua;
};
