#include "core/ui/Ventana.h"

#include "core/ui/Posicion_Qt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>

namespace {

QList<Ventana*> cargadas;

QPointer<QMdiArea>& Area_Principal()
{
    static QPointer<QMdiArea> area;
    return area;
}

QWidget* Ventana_Principal()
{
    return Area_Principal() ? Area_Principal()->window() : nullptr;
}

} // namespace

Ventana::Ventana(const QString& nombre)
{
    setObjectName(nombre);
    setSizeGripEnabled(false);
    cargadas << this;
}

Ventana::~Ventana()
{
    cargadas.removeAll(this);
}

const QList<Ventana*>& Ventana::Cargadas()
{
    return cargadas;
}

void Ventana::Poner_Area(QMdiArea* area)
{
    Area_Principal() = area;
}

QMdiArea* Ventana::Area()
{
    return Area_Principal();
}

QWidget* Ventana::Marco()
{
    return subventana ? static_cast<QWidget*>(subventana.data()) : this;
}

const QWidget* Ventana::Marco() const
{
    return subventana ? static_cast<const QWidget*>(subventana.data()) : this;
}

void Ventana::Recordar_Posicion(const QString& seccion, int modo)
{
    seccion_posicion = seccion;
    modo_posicion = modo;
}

void Ventana::Poner_Botones(QPushButton* aceptar, QAbstractButton* cancelar)
{
    if (aceptar) {
        aceptar->setDefault(true);
    } else {
        const auto botones = findChildren<QPushButton*>();
        for (QPushButton* const boton : botones)
            boton->setAutoDefault(false);
    }
    boton_cancelar = cancelar;
}

void Ventana::Situar()
{
    if (situada) return;
    situada = true;
    Colocar();
    if (!seccion_posicion.isEmpty())
        Leer_Posicion_Ventana(*Marco(), seccion_posicion, modo_posicion);
}

void Ventana::Mostrar()
{
    if (en_espera) {
        raise();
        activateWindow();
        return;
    }
    if (!Area()) {
        show();
    } else if (!subventana) {
        setWindowModality(Qt::NonModal);
        // The frame would fall back on the smallest size that its contents ask for.
        const bool con_tamano = testAttribute(Qt::WA_Resized);
        const QSize deseado = size();
        // A QDialog centres itself in its parent when it is shown: inside a frame it must not.
        setAttribute(Qt::WA_Moved);
        subventana = Area()->addSubWindow(this);
        subventana->setAttribute(Qt::WA_DeleteOnClose, false);
        subventana->show();
        if (con_tamano) subventana->resize(deseado + subventana->size() - size());
    } else {
        show();
        subventana->isMinimized() ? subventana->showNormal() : subventana->show();
    }
    Situar();
    if (subventana) Area()->setActiveSubWindow(subventana);
    raise();
    activateWindow();
    Al_Activarse();
}

bool Ventana::event(QEvent* evento)
{
    if (evento->type() == QEvent::WindowActivate && situada && !descargada) Al_Activarse();
    return QDialog::event(evento);
}

void Ventana::Mostrar_Modal()
{
    if (en_espera) {
        raise();
        activateWindow();
        return;
    }
    Soltar_Marco();
    QWidget* const principal = Ventana_Principal();
    if (parentWidget() != principal) setParent(principal, Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    Situar();
    en_espera = true;
    const QPointer<Ventana> aqui(this);
    exec();
    if (aqui) en_espera = false;
}

void Ventana::Ocultar()
{
    if (subventana) subventana->hide();
    hide();
}

void Ventana::Descargar()
{
    if (!descargada) Marco()->close();
}

void Ventana::Soltar_Marco()
{
    if (!subventana) return;
    QMdiSubWindow* const viejo = subventana;
    subventana = nullptr;
    viejo->setWidget(nullptr);
    viejo->hide();
    viejo->deleteLater();
}

void Ventana::closeEvent(QCloseEvent* evento)
{
    evento->accept();
    if (descargada) return;
    const QPointer<Ventana> aqui(this);
    const bool se_queda = isVisible() && !Consiente_Cerrar();
    if (se_queda) evento->ignore();
    if (se_queda || !aqui || descargada) return;
    descargada = true;
    Al_Descargar();
    if (!seccion_posicion.isEmpty() && situada)
        Guardar_Posicion_Ventana(*Marco(), seccion_posicion, modo_posicion);
    if (subventana) subventana->deleteLater();
    hide();
    deleteLater();
}

void Ventana::reject()
{
    if (!boton_cancelar)
        Descargar();
    else if (boton_cancelar->isEnabled())
        boton_cancelar->click();
}

void Centrar_Horizontal(Ventana& ventana)
{
    QWidget* const marco = ventana.Marco();
    if (marco != &ventana) {
        marco->move((Ventana::Area()->width() - marco->width()) / 2, marco->y());
    } else if (const QWidget* const principal = Ventana_Principal()) {
        ventana.adjustSize();
        const int x = principal->x() + (principal->width() - ventana.width()) / 2;
        ventana.move(x, principal->y() + (principal->height() - ventana.height()) / 2);
    }
}
