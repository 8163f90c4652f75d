#pragma once

#include "codes/Ficha_Libreria.h"
#include "core/ui/Ventana.h"

class QLineEdit;

/// The two boxes of a library's header, which both series have under names of their own.
class Dialogo_Ficha : public Ventana {
    Q_OBJECT
public:
    /// Shows a header modally and returns when the dialog has closed.
    void Mostrar_Con(Ficha_Libreria& ficha);

protected:
    struct Nombres {
        QString dialogo, titulo;
        QString caja_codigo, rotulo_codigo, caja_descripcion, rotulo_descripcion;
    };
    explicit Dialogo_Ficha(const Nombres& nombres);

private:
    void BtnAce_Click();

    Ficha_Libreria* modelo = nullptr;
    QLineEdit *codigo, *descripcion;
};
