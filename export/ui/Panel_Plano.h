#pragma once

#include "export/plano/Plano_De_Datos.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;
class Visor_Plano;

/// A plan with what goes with it: its layers, the search of a point, measuring, printing to scale,
/// and the line that tells what is under the pointer. The main program and the viewer of drawings
/// share it.
class Panel_Plano : public QWidget {
    Q_OBJECT
public:
    Panel_Plano();

    /// @param nombre  of what is shown, for the names of the files made of it
    void Poner(const Plano_Hecho& hecho, const QString& nombre);
    Visor_Plano& Visor() { return *visor; }
    /// Writes the sheet to a file that is asked for, to scale or as it fits.
    void Guardar();
    void Imprimir();

private:
    QWidget* Hacer_Lado();
    void Buscar();
    double Escala_Pedida() const;

    Visor_Plano* visor;
    QListWidget* LstCapas;
    QLineEdit *TxBuscar, *TxEscala;
    QLabel *LblDicho, *LblAvisos;
    QString nombre;
};
