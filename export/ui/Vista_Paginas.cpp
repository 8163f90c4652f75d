#include "export/ui/Vista_Paginas.h"

#include "export/ui/Pintor_Pagina.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace {

constexpr int HUECO = 12; // between pages, pixels

} // namespace

Vista_Paginas::Vista_Paginas()
{
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void Vista_Paginas::Poner(const QByteArray& nuevo, const QList<Pagina>& hojas, const Papel& hoja)
{
    texto = nuevo;
    paginas = hojas;
    papel = hoja;
    Medir();
    viewport()->update();
}

QSize Vista_Paginas::sizeHint() const
{
    return QSize(620, 360);
}

// The page takes the width that there is.
double Vista_Paginas::Escala() const
{
    return std::max(0.1, (viewport()->width() - 2.0 * HUECO) / papel.ancho);
}

double Vista_Paginas::Paso() const
{
    return papel.alto * Escala() + HUECO;
}

void Vista_Paginas::Medir()
{
    const int total = int(double(paginas.size()) * Paso()) + HUECO;
    verticalScrollBar()->setRange(0, std::max(0, total - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(24);
}

void Vista_Paginas::resizeEvent(QResizeEvent* evento)
{
    QAbstractScrollArea::resizeEvent(evento);
    Medir();
}

void Vista_Paginas::keyPressEvent(QKeyEvent* evento)
{
    QScrollBar& barra = *verticalScrollBar();
    if (evento->key() == Qt::Key_Home)
        barra.setValue(0);
    else if (evento->key() == Qt::Key_End)
        barra.setValue(barra.maximum());
    else
        QAbstractScrollArea::keyPressEvent(evento);
}

void Vista_Paginas::paintEvent(QPaintEvent*)
{
    QPainter pintor(viewport());
    pintor.setRenderHint(QPainter::TextAntialiasing);
    pintor.fillRect(viewport()->rect(), palette().color(QPalette::Dark));
    const double escala = Escala(), arriba = verticalScrollBar()->value();
    for (qsizetype i = qsizetype(std::max(0.0, (arriba - HUECO) / Paso())); i < paginas.size();
         ++i) {
        const double y = double(i) * Paso() + HUECO - arriba;
        if (y > viewport()->height()) break;
        pintor.save();
        pintor.translate(HUECO, y);
        pintor.scale(escala, escala);
        const QRectF hoja(0, 0, papel.ancho, papel.alto);
        pintor.fillRect(hoja, Qt::white);
        pintor.setClipRect(hoja);
        pintor.setPen(Qt::black);
        Pintar_Pagina(pintor, paginas[i]);
        pintor.restore();
    }
}
