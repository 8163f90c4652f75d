#pragma once

#include "export/impresion/Paginas.h"

#include <QAbstractScrollArea>

/// Shows pages one below the other, as they will lie on paper. Only what is in sight is drawn.
class Vista_Paginas : public QAbstractScrollArea {
    Q_OBJECT
    /// The text that the pages were made of.
    Q_PROPERTY(QByteArray TextRTF MEMBER texto)
public:
    Vista_Paginas();

    /// @param texto  what the pages were made of
    void Poner(const QByteArray& texto, const QList<Pagina>& paginas, const Papel& papel);
    const QList<Pagina>& Paginas() const { return paginas; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    double Escala() const;
    double Paso() const;
    void Medir();

    QByteArray texto;
    QList<Pagina> paginas;
    Papel papel;
};
