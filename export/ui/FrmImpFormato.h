#pragma once

#include "core/ui/Ventana.h"
#include "export/impresion/Dialogo_Imprimir.h"

#include <memory>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class Vista_Paginas;

/// Shows a session's rows as they will print, and prints them.
class FrmImpFormato : public Ventana {
    Q_OBJECT
public:
    FrmImpFormato();

    /// Formats the session and shows the preview modally. An error is reported, and nothing shown.
    void Mostrar_Con(const Trabajo_Exportar& trabajo, const Opciones_Exportar& opciones = {});

private:
    QGroupBox* Hacer_Parametros();
    QLayout* Hacer_Botones();
    void Tomar_Parametros();
    void Renderizar();

    std::unique_ptr<Dialogo_Imprimir> modelo;
    bool llenando = false;
    Vista_Paginas* RTB;
    QCheckBox *Check1, *Check2, *Check4, *Check5;
    QLineEdit *Text1, *Text2, *TxtAnchura, *TxtAltura;
    QProgressBar* Pb1;
    QLabel* LblPaginas;
    QPushButton *BtnIns, *BtnEdtCol, *BtnImpr, *BtnCer;
};
