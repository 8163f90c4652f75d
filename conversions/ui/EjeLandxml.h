#pragma once

#include "core/ui/Ventana.h"

class QListWidget;

/// Choice among what a LandXML file offers, read from the list file when the dialog is loaded.
class EjeLandxml : public Ventana {
    Q_OBJECT
public:
    EjeLandxml();

    /// What was accepted: the line's number from 0 and its text; -1 and empty before that.
    int Indice = -1;
    QString Texto;

private:
    void BtnAce_Click();

    QListWidget* listEjes;
};
