#pragma once

#include "core/ui/Ventana.h"

#include <array>

class QLineEdit;

/// The five texts of a levelling book's heading.
class Peticion : public Ventana {
    Q_OBJECT
public:
    Peticion();

    /// What was accepted.
    QString Dato1, Dato2, Dato3, Dato4, Dato5;
    bool Aceptada = false;

private:
    void Aceptar_Click();

    std::array<QLineEdit*, 5> cajas;
};
