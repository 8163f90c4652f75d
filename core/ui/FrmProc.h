#pragma once

#include "core/ui/Ventana.h"

#include <QElapsedTimer>

class QLabel;
class QProgressBar;

/// Progress dialog with its cancel button. It is always application-modal and never blocks the
/// running loop, so that the user's edits can't fall into it.
class FrmProc : public Ventana {
    Q_OBJECT
public:
    FrmProc();

    /// Puts it up with a label and the end of the bar.
    void Abrir(const QString& etiqueta, qint64 maximo);
    void Etiqueta(const QString& etiqueta, qint64 maximo);
    /// Moves the bar; a few times a second it also lets the user's click on the button through.
    void Avanzar(qint64 valor);

protected:
    void Colocar() override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void BtnCan_Click();

    QLabel* LblMsg;
    QProgressBar* PB1;
    QPushButton* BtnCan;
    QElapsedTimer desde_pasada;
    qint64 maximo_pedido = 0;
};
