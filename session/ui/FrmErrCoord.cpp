#include "session/ui/FrmErrCoord.h"

#include "core/ModEstTotal.h"
#include "core/ui/Piezas.h"
#include "session/Dialogos_Pequenos.h"

#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

// The image's number stands with the node: it tells which coordinate overflows.
constexpr int PAPEL_IMAGEN = Qt::UserRole;

// The image list: root, point, coordinate, coordinate that overflows the instrument's field.
const QString IMG1[] = {"bmp/arbol_raiz.png", "bmp/arbol_punto.png", "bmp/arbol_coordenada.png",
                        "bmp/arbol_desborda.png"};

void Anadir(QTreeWidgetItem* padre, const Nodo_Coordenada& nodo)
{
    auto* const item = new QTreeWidgetItem(padre, {nodo.texto});
    item->setData(0, PAPEL_IMAGEN, nodo.imagen);
    item->setIcon(0, QIcon(En_Instalacion(IMG1[nodo.imagen - 1])));
    for (const Nodo_Coordenada& hijo : nodo.hijos)
        Anadir(item, hijo);
}

} // namespace

FrmErrCoord::FrmErrCoord() : Ventana(QStringLiteral("FrmErrCoord"))
{
    setWindowTitle(QStringLiteral("Error en la carga de Coordenadas"));
    TV1 = new QTreeWidget;
    TV1->setObjectName(QStringLiteral("TV1"));
    TV1->setHeaderHidden(true);
    QPushButton* const BtnCer = Piezas::Boton("BtnCer", "&Aceptar");
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(TV1, 1);
    caja->addWidget(BtnCer, 0, Qt::AlignRight);
    Poner_Botones(BtnCer, BtnCer);
    connect(BtnCer, &QPushButton::clicked, this, &Ventana::Ocultar);
    resize(380, 420);
}

void FrmErrCoord::Cargar_Datos(const QString& lista)
{
    TV1->clear();
    Anadir(TV1->invisibleRootItem(), Arbol_Coordenadas(lista));
    TV1->expandAll();
}
