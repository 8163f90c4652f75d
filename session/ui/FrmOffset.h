#pragma once

#include "core/ui/Ventana.h"

class QLineEdit;

/// Asks for the coordinate offsets before an export or an upload. Loading it takes the offsets in
/// force away; only its acceptance sets them.
class FrmOffset : public Ventana {
    Q_OBJECT
public:
    FrmOffset();

    /// The user did not accept: what asked for the offsets ends.
    bool Cancelado = false;

    /// Shows it modally with the boxes of these axes enabled.
    /// @param formato  "e,d"
    void Mostrar_Ejes(bool cx, bool cy, bool cz, const QString& formato);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void Al_Descargar() override;

private:
    void BtnAce_Click();
    void Teclear(QLineEdit& caja, QChar tecla);

    QString formato_pedido;
    bool aceptado = false;
    QLineEdit *TxtCx, *TxtCy, *TxtCz;
};

/// Asks for the offsets of these axes. @return false when the user cancelled
bool Pedir_Desplazamientos(bool cx, bool cy, bool cz, const QString& formato);
