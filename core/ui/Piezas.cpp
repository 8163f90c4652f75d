#include "core/ui/Piezas.h"

#include "core/ModEstTotal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>

namespace Piezas {

QPushButton* Boton(const QString& nombre, const QString& texto, const QString& consejo)
{
    auto* const boton = new QPushButton(texto);
    boton->setObjectName(nombre);
    boton->setToolTip(consejo);
    return boton;
}

QPushButton* Boton_Dibujo(const QString& nombre, const QString& dibujo, const QString& texto,
                          const QString& consejo)
{
    const QIcon icono(En_Instalacion(QStringLiteral("bmp/") + dibujo));
    const bool hay = !icono.pixmap(22, 22).isNull();
    QPushButton* const boton = Boton(nombre, hay ? QString() : texto, consejo);
    boton->setAccessibleName(texto);
    if (hay) {
        boton->setIcon(icono);
        boton->setIconSize(QSize(22, 22));
    }
    return boton;
}

QLabel* Rotulo(const QString& texto, const QString& nombre)
{
    auto* const rotulo = new QLabel(texto);
    rotulo->setObjectName(nombre);
    rotulo->setTextFormat(Qt::PlainText);
    return rotulo;
}

QLineEdit* Caja(const QString& nombre, int maximo)
{
    auto* const caja = new QLineEdit;
    caja->setObjectName(nombre);
    if (maximo > 0) caja->setMaxLength(maximo);
    return caja;
}

QComboBox* Combo(const QString& nombre)
{
    auto* const combo = new QComboBox;
    combo->setObjectName(nombre);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return combo;
}

QCheckBox* Casilla(const QString& nombre, const QString& texto)
{
    auto* const casilla = new QCheckBox(texto);
    casilla->setObjectName(nombre);
    return casilla;
}

QGroupBox* Grupo(const QString& titulo, const QString& nombre)
{
    auto* const grupo = new QGroupBox(titulo);
    grupo->setObjectName(nombre);
    return grupo;
}

QListWidget* Lista(const QString& nombre)
{
    auto* const lista = new QListWidget;
    lista->setObjectName(nombre);
    lista->setSelectionMode(QAbstractItemView::ExtendedSelection);
    return lista;
}

QLabel* Imagen(const QString& nombre, int ancho, int alto)
{
    auto* const imagen = new QLabel;
    imagen->setObjectName(nombre);
    imagen->setMinimumSize(ancho, alto);
    imagen->setAlignment(Qt::AlignCenter);
    return imagen;
}

QHBoxLayout* Fila_De_Botones(std::initializer_list<QPushButton*> botones)
{
    auto* const fila = new QHBoxLayout;
    fila->addStretch();
    for (QPushButton* const boton : botones)
        fila->addWidget(boton);
    return fila;
}

bool Poner_Imagen(QLabel& imagen, const QString& fichero)
{
    QPixmap dibujo;
    if (fichero.isEmpty() || !dibujo.load(fichero)) {
        imagen.clear();
        return false;
    }
    const QSize hueco = imagen.minimumSize();
    if (!hueco.isEmpty() && (dibujo.width() > hueco.width() || dibujo.height() > hueco.height()))
        dibujo = dibujo.scaled(hueco, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    imagen.setPixmap(dibujo);
    return true;
}

void Orden(std::initializer_list<QWidget*> piezas)
{
    QWidget* anterior = nullptr;
    for (QWidget* const pieza : piezas) {
        if (anterior) QWidget::setTabOrder(anterior, pieza);
        anterior = pieza;
    }
}

int Indice_De(const QComboBox& combo, const QString& texto)
{
    return combo.findText(texto, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

QString Texto_No_Disponible(const QString& que)
{
    return que.trimmed() + QStringLiteral(" todavía no está disponible en esta versión");
}

} // namespace Piezas
