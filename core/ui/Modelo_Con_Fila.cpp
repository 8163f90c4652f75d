#include "core/ui/Modelo_Con_Fila.h"

#include <QHeaderView>
#include <QTableView>

void Atar_Rejilla(QTableView* rejilla, Modelo_Con_Fila* modelo)
{
    rejilla->setModel(modelo);
    rejilla->setSelectionBehavior(QAbstractItemView::SelectRows);
    rejilla->setSelectionMode(QAbstractItemView::SingleSelection);
    rejilla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla->setAlternatingRowColors(true);
    rejilla->setTabKeyNavigation(false);
    rejilla->setWordWrap(false);
    rejilla->verticalHeader()->hide();
    rejilla->verticalHeader()->setDefaultSectionSize(rejilla->fontMetrics().height() + 8);
    rejilla->horizontalHeader()->setHighlightSections(false);
    rejilla->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QObject::connect(rejilla->selectionModel(), &QItemSelectionModel::currentRowChanged, modelo,
                     [modelo](const QModelIndex& fila) { modelo->Ir_A(fila.row()); });
    const auto seguir = [rejilla](int fila) {
        if (fila < 0 || rejilla->currentIndex().row() == fila) return;
        // A hidden column can't be the current one.
        int columna = 0;
        while (rejilla->isColumnHidden(columna) && columna + 1 < rejilla->model()->columnCount())
            ++columna;
        rejilla->setCurrentIndex(rejilla->model()->index(fila, columna));
    };
    QObject::connect(modelo, &Modelo_Con_Fila::reposicion, rejilla, seguir);
    seguir(modelo->Fila_Actual());
}
