#pragma once

#include "core/ui/Ventana.h"
#include "export/dxf/Conversion_DXF.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QSpinBox;

/// Makes a drawing of a session or of a text list: how its labels look, and in how many dimensions.
class FrmDXF : public Ventana {
    Q_OBJECT
public:
    FrmDXF();

    /// Shows it modally for a source; with the dialog up already, that takes the new source.
    void Mostrar_Con(const Origen_Dibujo& nuevo);

protected:
    void Colocar() override;
    void Al_Descargar() override;
    void closeEvent(QCloseEvent* evento) override;

private:
    QGroupBox* Hacer_Etiquetas();
    QGroupBox* Hacer_Colores();
    QGroupBox* Hacer_Muestra();
    QLayout* Hacer_Botones();
    int Color_Elegido() const;
    void Poner_Color(int numero);
    void Mostrar_Color();
    void Mostrar_Muestra();
    Textos_DXF Textos() const;
    void Transformar(Modo_DXF modo);

    Origen_Dibujo origen;
    Ajustes_DXF ajustes;
    bool exportando = false;
    QComboBox* CbFormato;
    QLineEdit *TxAltura, *TxInclinacion, *TxDecimales;
    QList<QRadioButton*> Opciones; // by `Color_DXF`
    QSpinBox* TxColor;
    QGridLayout* muestra;
    QLabel *LblPto, *LblNPunto, *LblCota, *LblCodigo, *LblMsg;
    QProgressBar* Pb1;
    QCheckBox* ChkVer;
    QList<QPushButton*> botones;
};
