#pragma once

#include "core/ui/Ventana.h"
#include "session/ModVDatos.h"

#include <functional>

class QLabel;
class QTableWidget;

/// One record, decoded into description and value.
class FrmEditar : public Ventana {
    Q_OBJECT
public:
    FrmEditar();

    /// Fills it and shows it modally; where it is open it is only filled anew.
    /// @param mover  moves the caller's data to the next (1) or previous (-1)
    /// record and shows that
    void Ver(const Vista_Registro& vista, std::function<void(int)> mover);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    bool Tecla(int tecla);

    std::function<void(int)> mover_datos;
    QLabel* LblPunto;
    QTableWidget* MSF;
    QPushButton *BtnAvanzar, *BtnRetrasar;
};
