#pragma once

#include "core/ui/Ventana.h"
#include "transfer/enlace/Envio.h"

class QCheckBox;
class QLabel;
class QProgressBar;

/// Sending dialog of all families: shows what its conversation does.
class Frmsplash1 : public Ventana {
    Q_OBJECT
public:
    Frmsplash1();

    Envio& El_Envio() { return *envio; }

protected:
    bool Consiente_Cerrar() override;
    void Al_Descargar() override;
    void Colocar() override;

private:
    void Conectar();

    Envio* envio;
    QLabel *Label1, *LblCuenta;
    QProgressBar* ProgressBar1;
    QCheckBox* Check1;
    QPushButton* BtnIniciar;
};
