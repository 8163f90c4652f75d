#include "export/ui/Visor_Plano.h"

#include "export/ui/Pintor_Plano.h"

#include <cmath>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr double PASO_ZOOM = 1.25;
constexpr double CERCA = 8; // pixels at which the pointer takes a point

QString Metros(double m)
{
    return QString::number(m, 'f', 3);
}

} // namespace

Visor_Plano::Visor_Plano()
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(200, 150);
    setAccessibleName(QStringLiteral("Plano"));
}

void Visor_Plano::Poner(Plano nuevo)
{
    plano = std::move(nuevo);
    desde = hasta = marcado = std::nullopt;
    Encajar();
}

void Visor_Plano::Poner_Visible(int capa, bool visible)
{
    plano.capas[capa].visible = visible;
    update();
}

void Visor_Plano::Encajar()
{
    encajado = true;
    vista.Tamano(width(), height());
    if (const auto caja = plano.Caja()) vista.Encajar(*caja, width(), height());
    update();
}

bool Visor_Plano::Ir_A(const QString& nombre)
{
    const auto lugar = plano.Buscar(nombre);
    if (!lugar) return false;
    encajado = false;
    marcado = lugar;
    vista.Centrar(*lugar);
    Decir(*lugar);
    update();
    return true;
}

void Visor_Plano::Poner_Medida(bool si)
{
    midiendo = si;
    desde = hasta = std::nullopt;
    setCursor(si ? Qt::CrossCursor : Qt::ArrowCursor);
    update();
}

void Visor_Plano::paintEvent(QPaintEvent*)
{
    QPainter pintor(this);
    const Aspecto_Plano aspecto = Aspecto_Pantalla();
    pintor.fillRect(rect(), aspecto.fondo);
    Pintar_Plano(pintor, plano, vista, aspecto, width(), height());
    const auto en = [&](Lugar_Plano l) {
        const Lugar_Plano p = vista.A_Pantalla(l);
        return QPointF(p.x, p.y);
    };
    pintor.setPen(QPen(QColor(255, 220, 80), 2));
    if (marcado) pintor.drawEllipse(en(*marcado), 9, 9);
    if (desde && hasta) pintor.drawLine(en(*desde), en(*hasta));
    if (!plano.Vacio()) return;
    pintor.setPen(Qt::lightGray);
    pintor.drawText(rect(), Qt::AlignCenter, QStringLiteral("No hay puntos que dibujar"));
}

void Visor_Plano::resizeEvent(QResizeEvent*)
{
    vista.Tamano(width(), height());
    if (encajado) Encajar();
}

void Visor_Plano::wheelEvent(QWheelEvent* evento)
{
    const double muescas = evento->angleDelta().y() / 120.0;
    encajado = false;
    vista.Acercar(std::pow(PASO_ZOOM, muescas), evento->position().x(), evento->position().y());
    update();
    evento->accept();
}

Lugar_Plano Visor_Plano::Enganchar(QPointF raton) const
{
    const Lugar_Plano lugar = vista.A_Terreno(raton.x(), raton.y());
    const Punto_De_Plano* const cerca = plano.Cercano(lugar, CERCA / vista.Escala());
    return cerca ? cerca->lugar : lugar;
}

void Visor_Plano::mousePressEvent(QMouseEvent* evento)
{
    if (midiendo && evento->button() == Qt::LeftButton) {
        Medir(Enganchar(evento->position()));
        return;
    }
    arrastrando = true;
    agarre = evento->position();
    setCursor(Qt::ClosedHandCursor);
}

void Visor_Plano::mouseMoveEvent(QMouseEvent* evento)
{
    const QPointF raton = evento->position();
    if (arrastrando) {
        encajado = false;
        vista.Arrastrar(raton.x() - agarre.x(), raton.y() - agarre.y());
        agarre = raton;
        update();
        return;
    }
    Decir(vista.A_Terreno(raton.x(), raton.y()));
}

void Visor_Plano::mouseReleaseEvent(QMouseEvent*)
{
    arrastrando = false;
    setCursor(midiendo ? Qt::CrossCursor : Qt::ArrowCursor);
}

void Visor_Plano::mouseDoubleClickEvent(QMouseEvent*)
{
    if (!midiendo) Encajar();
}

void Visor_Plano::keyPressEvent(QKeyEvent* evento)
{
    constexpr double PASO = 60; // pixels
    const double x = width() / 2.0, y = height() / 2.0;
    switch (evento->key()) {
    case Qt::Key_Plus:
        vista.Acercar(PASO_ZOOM, x, y);
        break;
    case Qt::Key_Minus:
        vista.Acercar(1 / PASO_ZOOM, x, y);
        break;
    case Qt::Key_Left:
        vista.Arrastrar(PASO, 0);
        break;
    case Qt::Key_Right:
        vista.Arrastrar(-PASO, 0);
        break;
    case Qt::Key_Up:
        vista.Arrastrar(0, PASO);
        break;
    case Qt::Key_Down:
        vista.Arrastrar(0, -PASO);
        break;
    case Qt::Key_Home:
        Encajar();
        return;
    default:
        QWidget::keyPressEvent(evento);
        return;
    }
    encajado = false;
    update();
}

void Visor_Plano::Medir(Lugar_Plano lugar)
{
    if (!desde || hasta) {
        desde = lugar;
        hasta = std::nullopt;
        Q_EMIT dicho(QStringLiteral("Pulse el otro extremo"));
    } else {
        hasta = lugar;
        Q_EMIT dicho(QStringLiteral("Distancia: %1 m   ΔX %2   ΔY %3")
                         .arg(Metros(Distancia(*desde, *hasta)), Metros(hasta->x - desde->x),
                              Metros(hasta->y - desde->y)));
    }
    update();
}

void Visor_Plano::Decir(Lugar_Plano lugar)
{
    if (midiendo && desde) return;
    QString texto = QStringLiteral("X %1   Y %2").arg(Metros(lugar.x), Metros(lugar.y));
    if (const Punto_De_Plano* const p = plano.Cercano(lugar, CERCA / vista.Escala())) {
        if (!p->nombre.isEmpty()) texto += QStringLiteral("   Punto ") + p->nombre;
        if (p->cota) texto += QStringLiteral("   Z ") + Metros(*p->cota);
        if (p->repetido) texto += QStringLiteral("   (repetido)");
        if (p->lejano) texto += QStringLiteral("   (muy alejado)");
    }
    Q_EMIT dicho(texto);
}
