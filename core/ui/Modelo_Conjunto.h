#pragma once

#include "core/jet/Base.h"
#include "core/ui/Modelo_Con_Fila.h"

#include <functional>
#include <memory>
#include <QCache>
#include <QList>
#include <QString>

/// One column of a bound grid.
struct Columna_Rejilla {
    QString titulo;
    QString campo; ///< column of the query; "KRT2.OPE" where a name stands twice
    /// How a value is shown; none: as it stands.
    std::function<QString(const QString&)> forma{};
};

/// Rows of a query for grids and combos, with one current row that all who look at it share.
/// Only the rows that are looked at are read, so a session of any length opens at once.
class Modelo_Conjunto : public Modelo_Con_Fila {
    Q_OBJECT
public:
    explicit Modelo_Conjunto(QObject* padre = nullptr);

    void Poner_Columnas(const QList<Columna_Rejilla>& columnas);
    /// Runs the query; the first row is the current one. @throws Error_Ejecucion as the engine does
    void Abrir(const std::shared_ptr<Base>& base, const QString& sql);
    /// Runs it again: what changed shows, and the first row is the current one.
    void Refresh();
    void Cerrar();

    bool Vacio() const { return rowCount() == 0; }
    int Fila_Actual() const override { return actual; }
    void Ir_A(int fila) override;
    /// The recordset itself, on the current row. @throws Error_Ejecucion 91 before `Abrir`
    Conjunto_Registros& Conjunto();
    /// Takes the recordset's row as the current one, after a routine has moved it.
    void Tomar_Fila();
    /// Value of a column of the current row as text; empty without one.
    QString Texto(const QString& campo) const;
    qint64 Entero(const QString& campo) const;

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

private:
    QString Celda(int fila, int columna) const;

    std::shared_ptr<Base> base;
    QString sql;
    mutable std::unique_ptr<Conjunto_Registros> conjunto;
    QList<Columna_Rejilla> columnas;
    mutable QCache<int, QStringList> leidas;
    int filas = 0;
    int actual = -1;
};
