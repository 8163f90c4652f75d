#include "formats/ui/Panel_Campos.h"

#include "core/ui/Piezas.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int ANCHO_LISTA = 210, ALTO_LISTA = 220;

QList<int> Seleccion(const QListWidget& lista)
{
    QList<int> filas;
    const auto elegidas = lista.selectionModel()->selectedRows();
    for (const QModelIndex& i : elegidas)
        filas << i.row();
    return filas;
}

void Llenar(QListWidget& lista, const QStringList& textos)
{
    lista.clear();
    lista.addItems(textos);
}

void Seleccionar(QListWidget& lista, int fila)
{
    if (fila < 0 || lista.count() == 0) return;
    lista.setCurrentRow(qMin(fila, lista.count() - 1), QItemSelectionModel::ClearAndSelect);
}

QGroupBox* En_Marco(const QString& titulo, QListWidget* lista)
{
    QGroupBox* const marco = Piezas::Grupo(titulo);
    auto* const caja = new QVBoxLayout(marco);
    lista->setMinimumSize(ANCHO_LISTA, ALTO_LISTA);
    caja->addWidget(lista);
    return marco;
}

} // namespace

Panel_Campos::Panel_Campos(const QString& subir, const QString& bajar)
{
    List1 = Piezas::Lista("List1");
    List2 = Piezas::Lista("List2");
    BtnAgregar =
        Piezas::Boton("BtnAgregar", "Agregar", "Pasa los campos marcados a los seleccionados");
    BtnQuitar =
        Piezas::Boton("BtnQuitar", "Quitar", "Devuelve los campos marcados a los disponibles");
    BtnSubir = Piezas::Boton(subir, "▲", "Sube el campo marcado");
    BtnBajar = Piezas::Boton(bajar, "▼", "Baja el campo marcado");
    for (QPushButton* const b : {BtnSubir, BtnBajar})
        b->setFixedWidth(36);
    BtnSubir->setAccessibleName("Subir");
    BtnBajar->setAccessibleName("Bajar");

    auto* const enmedio = new QVBoxLayout;
    enmedio->addStretch();
    enmedio->addWidget(BtnAgregar);
    enmedio->addWidget(BtnQuitar);
    enmedio->addStretch();
    auto* const orden = new QVBoxLayout;
    orden->addStretch();
    orden->addWidget(BtnSubir);
    orden->addWidget(BtnBajar);
    orden->addStretch();
    auto* const caja = new QHBoxLayout(this);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->addWidget(En_Marco(" Campos Disponibles ", List1), 1);
    caja->addLayout(enmedio);
    caja->addWidget(En_Marco("Campos Seleccionados", List2), 1);
    caja->addLayout(orden);

    connect(BtnAgregar, &QPushButton::clicked, this, &Panel_Campos::Agregar);
    connect(BtnQuitar, &QPushButton::clicked, this, &Panel_Campos::Quitar);
    connect(List1, &QListWidget::itemDoubleClicked, BtnAgregar, &QPushButton::click);
    connect(List2, &QListWidget::itemDoubleClicked, BtnQuitar, &QPushButton::click);
    connect(BtnSubir, &QPushButton::clicked, this, [this] { Mover(&Dos_Listas::Subir); });
    connect(BtnBajar, &QPushButton::clicked, this, [this] { Mover(&Dos_Listas::Bajar); });
}

void Panel_Campos::Atar(Dos_Listas* de)
{
    listas = de;
    Mostrar();
}

void Panel_Campos::Mostrar()
{
    if (!listas) return;
    QStringList disponibles = listas->disponibles;
    if (rotulo)
        for (QString& campo : disponibles)
            campo = rotulo(campo);
    Llenar(*List1, disponibles);
    Llenar(*List2, listas->elegidos);
}

void Panel_Campos::Bloquear(bool bloqueado)
{
    for (QPushButton* const b : {BtnAgregar, BtnQuitar, BtnSubir, BtnBajar})
        b->setEnabled(!bloqueado);
}

void Panel_Campos::Agregar()
{
    if (!listas) return;
    const int queda = listas->Agregar(Seleccion(*List1));
    Mostrar();
    Seleccionar(*List1, queda);
}

void Panel_Campos::Quitar()
{
    if (!listas) return;
    const int queda = listas->Quitar(Seleccion(*List2));
    Mostrar();
    Seleccionar(*List2, queda);
}

void Panel_Campos::Mover(int (Dos_Listas::*como)(const QList<int>&))
{
    if (!listas) return;
    const int queda = (listas->*como)(Seleccion(*List2));
    if (queda < 0) return;
    Llenar(*List2, listas->elegidos);
    Seleccionar(*List2, queda);
}
