#pragma once

#include "core/ui/Ventana.h"

class QGroupBox;
class QLabel;
class QListWidget;
class QListWidgetItem;

/// The way into every exchange with an instrument: the operations of the model
/// in force, downloads on the left, uploads on the right. Enter on a list
/// starts its operation, and so does dragging it to the picture it goes to: the
/// PC takes downloads, the instrument uploads.
class FrmIni : public Ventana {
    Q_OBJECT
public:
    FrmIni();

protected:
    void Al_Activarse() override;
    void resizeEvent(QResizeEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Hacer_Frame();
    void Mostrar_Foto(const QString& modelo);
    void Llenar(QListWidget& lista, const QString& tipo_ope);
    bool Soltado(QLabel& imagen, const QString& texto);
    void Empezar(const QListWidget& lista);

    QLabel *titulo_modelo, *nombre_modelo, *Image1, *Image2;
    QGroupBox* Frame1;
    QListWidget *LVI, *LVD;
    QPushButton *Command1, *btnAyuda;
};
