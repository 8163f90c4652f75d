#pragma once

#include "core/Copias.h"
#include "core/ui/Ventana.h"

class QListWidget;
class QPushButton;

/// "Recuperar de la copia": the copies of the database that there are, the newest first; the chosen
/// one is put back after a question.
class FrmCopias : public Ventana {
    Q_OBJECT
public:
    FrmCopias();

private:
    void Llenar();
    void BtnRecuperar_Click();

    QList<Copias::Copia> copias;
    QListWidget* LstCopias;
    QPushButton* BtnRecuperar;
};
