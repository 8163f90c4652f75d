#pragma once

#include "core/Ajustes_Modelo.h"
#include "core/ui/Ventana.h"

class QLabel;
class QListWidget;

/// Model picker: modal at start-up, modeless when another dialog asks for it. What is chosen lasts
/// for this run.
class FrmKRT : public Ventana {
    Q_OBJECT
public:
    FrmKRT();

private:
    /// Selected entry from 0, or -1.
    int Elegido() const;
    void List1_Click();
    void BtnSalir_Click();

    Lista_FrmKRT modelos;
    QListWidget* List1;
    QLabel* Image1;
};
