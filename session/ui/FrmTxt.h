#pragma once

#include "core/ui/Ventana.h"

class QPlainTextEdit;

/// Plain viewer of a text file.
class FrmTxt : public Ventana {
    Q_OBJECT
public:
    FrmTxt();

    /// Loads a file and shows it: modally above a modal dialog, otherwise among the others.
    /// @param fija  in a fixed-pitch font, for text in columns
    void Ver(const QString& fichero, bool fija);

private:
    QPlainTextEdit* RTB;
};
