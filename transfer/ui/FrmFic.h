#pragma once

#include "core/ui/Ventana.h"

class QLineEdit;

/// Asks for the name of the session.
class FrmFic : public Ventana {
    Q_OBJECT
public:
    FrmFic();
    /// The accepted name; empty when cancelled.
    QString Nombre;

private:
    void BtnAce_Click();

    QLineEdit* Txt;
};

/// Shows it modally. @return the name; empty when cancelled
QString Pedir_Nombre_Sesion();
