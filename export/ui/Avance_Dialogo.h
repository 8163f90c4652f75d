#pragma once

#include "export/Avance_Exportar.h"

#include <QElapsedTimer>

class QLabel;
class QProgressBar;

/// What the engine reports goes to a dialog's bar and label.
class Avance_Dialogo : public Avance_Exportar {
public:
    /// The bar counts in thousandths and moves a few times a second: rows come by the ten thousand.
    static constexpr int TOPE = 1000;

    Avance_Dialogo(QProgressBar& barra, QLabel& rotulo);
    void Etiqueta(const QString& texto) override;
    void Maximo(qint64 nuevo) override { maximo = nuevo; }
    void Valor(qint64 valor) override;

private:
    QProgressBar& barra;
    QLabel& rotulo;
    QElapsedTimer reloj;
    qint64 maximo = 0;
};
