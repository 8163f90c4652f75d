#pragma once

#include <QAbstractTableModel>

class QTableView;

/// Rows for grids with one current row, which all who look at the model share.
class Modelo_Con_Fila : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Current row from 0, or -1.
    virtual int Fila_Actual() const = 0;
    /// Goes to a row; one that is not there is ignored.
    virtual void Ir_A(int fila) = 0;

Q_SIGNALS:
    /// The current row is another one, or the same read anew; -1 when there is none.
    void reposicion(int fila);
};

/// Ties a grid to the model: selecting a row makes it the current one and the other way round.
/// Sets the grid up as all of the program's are: whole rows, one at a time, read only.
void Atar_Rejilla(QTableView* rejilla, Modelo_Con_Fila* modelo);
