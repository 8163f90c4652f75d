#pragma once

#include "export/plano/Vista_Plano.h"

#include <QWidget>

/// A plan in a window: the wheel zooms where the pointer is, dragging moves, the keys +, -, arrows
/// and Home do the same without a mouse.
class Visor_Plano : public QWidget {
    Q_OBJECT
public:
    Visor_Plano();

    void Poner(Plano nuevo);
    const Plano& Mostrado() const { return plano; }
    void Poner_Visible(int capa, bool visible);
    /// Shows all of the plan.
    void Encajar();
    /// Puts a point in the middle and marks it. @return false when there is none of that name
    bool Ir_A(const QString& nombre);
    /// Clicks measure lengths instead of dragging.
    void Poner_Medida(bool si);
    const Vista_Plano& Vista() const { return vista; }
    QSize sizeHint() const override { return QSize(640, 400); }

Q_SIGNALS:
    /// What is under the pointer: coordinates, the point near it, or the length being measured.
    void dicho(const QString& texto);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void Decir(Lugar_Plano lugar);
    void Medir(Lugar_Plano lugar);
    Lugar_Plano Enganchar(QPointF raton) const;

    Plano plano;
    Vista_Plano vista;
    bool encajado = true; // the window has to show all again when its size changes
    QPointF agarre;
    bool arrastrando = false, midiendo = false;
    std::optional<Lugar_Plano> desde, hasta, marcado;
};
