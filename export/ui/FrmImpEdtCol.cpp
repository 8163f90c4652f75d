#include "export/ui/FrmImpEdtCol.h"

#include "core/Interfaz.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"
#include "session/ui/Rejilla.h"

#include <QAction>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

FrmImpEdtCol::FrmImpEdtCol() : Ventana(QStringLiteral("FrmImpEdtCol")), MSF(Hacer_Rejilla("MSF"))
{
    setWindowTitle(QStringLiteral("Editar Cabeceras de Campos"));
    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(Piezas::Rotulo("Doble clic, o Intro, para cambiar un nombre"));
    caja->addWidget(MSF, 1);
    caja->addLayout(Piezas::Fila_De_Botones({BtnAce, BtnCan}));
    resize(380, 320);
    Poner_Botones(nullptr, BtnCan);
    connect(MSF, &QTableWidget::cellDoubleClicked, this, &FrmImpEdtCol::Cambiar);
    // Enter in the grid does what the double click does.
    auto* const intro = new QAction(MSF);
    intro->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    intro->setShortcutContext(Qt::WidgetShortcut);
    MSF->addAction(intro);
    connect(intro, &QAction::triggered, this, [this] { Cambiar(MSF->currentRow()); });
    connect(BtnAce, &QPushButton::clicked, this, [this] {
        aceptado = true;
        Ocultar();
    });
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Ocultar);
}

void FrmImpEdtCol::Cambiar(int fila)
{
    if (fila < 0) return;
    QTableWidgetItem* const celda = MSF->item(fila, 0);
    const auto nuevo = Interfaz_Actual().Pedir_Texto(
        "Editar columna", "Introduzca el nuevo nombre de la columna", celda->text());
    if (nuevo && !nuevo->isEmpty()) celda->setText(*nuevo);
}

std::optional<QStringList> FrmImpEdtCol::Editar(const QStringList& titulos)
{
    aceptado = false;
    MSF->clear();
    MSF->setColumnCount(1);
    MSF->setHorizontalHeaderLabels({"Columna"});
    MSF->setRowCount(int(titulos.size()));
    for (int i = 0; i < titulos.size(); ++i)
        MSF->setItem(i, 0, new QTableWidgetItem(titulos[i]));
    if (!titulos.isEmpty()) MSF->setCurrentCell(0, 0);
    MSF->setFocus();
    const QPointer<FrmImpEdtCol> aqui(this);
    Mostrar_Modal();
    if (!aqui || !aceptado) return std::nullopt;
    QStringList nuevos;
    for (int i = 0; i < MSF->rowCount(); ++i)
        nuevos << MSF->item(i, 0)->text();
    return nuevos;
}

std::optional<QStringList> Editar_Columnas(const QStringList& titulos)
{
    return Dialogos::Unico<FrmImpEdtCol>().Editar(titulos);
}
