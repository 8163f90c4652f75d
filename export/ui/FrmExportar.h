#pragma once

#include "core/ui/Ventana.h"
#include "export/Dialogo_Exportar.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QRadioButton;

/// Asks for the kind of output and the file, and exports.
class FrmExportar : public Ventana {
    Q_OBJECT
public:
    FrmExportar();

    /// Shows it modally for a session and a format.
    void Mostrar_Con(const Trabajo_Exportar& trabajo);

protected:
    void Colocar() override;
    void closeEvent(QCloseEvent* evento) override;

private:
    QGroupBox* Hacer_Opciones();
    QLayout* Hacer_Fichero();
    void Mostrar_Modelo();
    void BtnExportar_Click();

    std::unique_ptr<Dialogo_Exportar> modelo;
    bool exportando = false;
    QList<QRadioButton*> OptFor;
    QLabel *Label3, *Label4, *LblMsg;
    QComboBox *Caracter, *VersionExcel;
    QCheckBox* ChkNumeros;
    QLineEdit* Text1;
    QProgressBar* Pb1;
    QPushButton *BtnElegir, *BtnExportar;
};
