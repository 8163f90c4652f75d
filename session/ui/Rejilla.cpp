#include "session/ui/Rejilla.h"

#include <QHeaderView>
#include <QTableWidget>

QTableWidget* Hacer_Rejilla(const QString& nombre)
{
    auto* const rejilla = new QTableWidget(0, 2);
    rejilla->setObjectName(nombre);
    rejilla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla->setSelectionBehavior(QAbstractItemView::SelectRows);
    rejilla->setAlternatingRowColors(true);
    rejilla->setTabKeyNavigation(false);
    rejilla->setWordWrap(false);
    rejilla->verticalHeader()->hide();
    rejilla->verticalHeader()->setDefaultSectionSize(rejilla->fontMetrics().height() + 8);
    rejilla->horizontalHeader()->setStretchLastSection(true);
    rejilla->horizontalHeader()->setHighlightSections(false);
    rejilla->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    rejilla->setColumnWidth(0, 190);
    return rejilla;
}

void Poner_Lineas(QTableWidget& rejilla, const QString& titulo1, const QString& titulo2,
                  const QList<Linea_Rejilla>& lineas)
{
    rejilla.setRowCount(0);
    rejilla.setHorizontalHeaderLabels({titulo1, titulo2});
    rejilla.setRowCount(int(lineas.size()));
    for (int i = 0; i < lineas.size(); ++i) {
        rejilla.setItem(i, 0, new QTableWidgetItem(lineas[i].campo));
        rejilla.setItem(i, 1, new QTableWidgetItem(lineas[i].valor));
    }
}
