#pragma once

#include "export/Columna_Exportar.h"
#include "export/nivel/Datos_Nivel.h"

#include <initializer_list>
#include <optional>
#include <QStringList>

/// `Filas_Exportar`, the row table: first index the column, second the row; all cells of a column
/// of one length.
using Filas_Exportar = std::vector<Columna_Exportar>;

/// What stage 1 makes of a session.
struct Datos_Formateados {
    QStringList campos; ///< names of the fields, in the order of the columns
    Filas_Exportar filas;
    /// Level lines that rows marked by code 6 or 5 stand for, in the order of these rows.
    QStringList lineas_especiales;
    /// The session as the level's report takes it; empty in the other ways of stage 1.
    Datos_Nivel nivel;

    std::size_t Numero_De_Filas() const { return filas.empty() ? 0 : filas.front().size(); }
    /// @return the column, from 0, of the first of these names that is a field
    std::optional<std::size_t> Columna(std::initializer_list<QStringView> nombres) const;
};
