#pragma once

#include "core/ui/Modelo_Con_Fila.h"
#include "session/Lista_Sesion.h"

/// The lines of a session for the grid of `FrmDatos`: Punto, Campo, DATOS. Lines are found as the
/// grid is scrolled towards their end.
class Modelo_Lista : public Modelo_Con_Fila {
    Q_OBJECT
public:
    using Modelo_Con_Fila::Modelo_Con_Fila;

    /// Shows a list from its first line, the current one. @throws Error_Ejecucion as the engine does
    void Abrir(std::unique_ptr<Lista_Sesion> lista);

    int Fila_Actual() const override { return actual; }
    void Ir_A(int fila) override;
    /// Goes so many lines on, or back. @return false at the ends: the current line stays
    bool Mover(int paso);
    /// The current line; an empty one without it.
    Linea_De_Sesion Actual() const;

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    bool canFetchMore(const QModelIndex& padre) const override;
    void fetchMore(const QModelIndex& padre) override;

private:
    bool Alcanzar(int fila);

    std::unique_ptr<Lista_Sesion> lista;
    int filas = 0; // those that the grid knows of
    int actual = -1;
};
