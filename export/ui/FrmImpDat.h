#pragma once

#include "core/ui/Ventana.h"
#include "export/impresion/Renderiza_Pagina.h"

#include <optional>

class QLineEdit;

/// Asks for the job that the page's head names.
class FrmImpDat : public Ventana {
    Q_OBJECT
public:
    FrmImpDat();

    /// Shows it modally. @return nothing when it was cancelled
    std::optional<Datos_Trabajo> Pedir(const Datos_Trabajo& antes);

private:
    void BtnAce_Click();

    bool aceptado = false;
    QLineEdit *TxtTrabajo, *TxtNombre;
};

/// The same on the shared instance.
std::optional<Datos_Trabajo> Pedir_Trabajo(const Datos_Trabajo& antes);
