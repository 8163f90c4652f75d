#pragma once

#include "export/plano/Plano_De_Datos.h"

#include <QMainWindow>

class Panel_Plano;

/// The viewer of drawings: a plan of a .dxf file or of a text list of points, which it can save as a
/// drawing.
class Ventana_Convert : public QMainWindow {
    Q_OBJECT
public:
    Ventana_Convert();

    /// Opens a file; what it isn't is told. @return true when it is shown
    bool Abrir(const QString& nombre);

private:
    void Elegir();
    void Guardar_DXF();

    Panel_Plano* panel;
    QAction* accion_guardar;
    QString fichero;
};
