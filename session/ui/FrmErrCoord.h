#pragma once

#include "core/ui/Ventana.h"

class QTreeWidget;

/// Tree of the points whose coordinates the instrument can't take.
class FrmErrCoord : public Ventana {
    Q_OBJECT
public:
    FrmErrCoord();
    /// Fills the tree from a list of bad points (session/Dialogos_Pequenos.h).
    void Cargar_Datos(const QString& lista);

private:
    QTreeWidget* TV1;
};
