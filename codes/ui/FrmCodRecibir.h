#pragma once

#include "codes/Recepcion_Libreria.h"
#include "core/ui/Ventana.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// Where a code library that comes from the instrument goes.
class FrmCodRecibir : public Ventana {
    Q_OBJECT
public:
    FrmCodRecibir();

private:
    friend std::optional<Destino_Libreria> Pedir_Destino_Libreria();
    void Mostrar_Todo();

    Eleccion_Destino* modelo = nullptr;
    QRadioButton* OptDes[2];
    QLabel* Label1;
    QLineEdit* Text1;
    QPushButton* BtnSelFic;
};

/// Shows the dialog modally. @return nothing when cancelled
std::optional<Destino_Libreria> Pedir_Destino_Libreria();
