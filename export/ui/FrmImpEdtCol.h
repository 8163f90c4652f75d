#pragma once

#include "core/ui/Ventana.h"

#include <optional>
#include <QStringList>

class QTableWidget;

/// Renames the titles of the columns.
class FrmImpEdtCol : public Ventana {
    Q_OBJECT
public:
    FrmImpEdtCol();

    /// Shows it modally. @return the titles, or nothing when it was cancelled
    std::optional<QStringList> Editar(const QStringList& titulos);

private:
    void Cambiar(int fila);

    bool aceptado = false;
    QTableWidget* MSF;
};

/// The same on the shared instance.
std::optional<QStringList> Editar_Columnas(const QStringList& titulos);
