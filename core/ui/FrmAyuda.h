#pragma once

#include "core/Ayuda.h"
#include "core/ui/Ventana.h"

class QCheckBox;
class QLabel;

/// Step help: walks the user through what to do on the instrument before a transfer.
class FrmAyuda : public Ventana {
    Q_OBJECT
public:
    FrmAyuda();

    /// Reads the steps of an operation and shows them modally, beginning at `Paso_Ayuda`. Without
    /// steps it says so and is gone.
    void Cargar(const QString& tipo_ope, const QString& ope);

private:
    void Mostrar_Paso();
    void Check1_Click(bool marcada);

    QList<Paso> pasos;
    QLabel *Label1, *Picture1;
    QPushButton *BtnAtras, *BtnSiguiente;
    QCheckBox* Check1;
};
