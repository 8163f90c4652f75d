#pragma once

#include "export/Avance_Exportar.h"
#include "export/Datos_Formateados.h"
#include "export/dxf/ModDXF.h"

#include <functional>

/// A surveyed point as a drawing or a plan holds it; the texts are the table's cells.
struct Punto_Medido {
    QStringView nombre;
    double x = 0, y = 0, z = 0; ///< metres
    QStringView codigo;
};

/// The columns of a table that are a point's.
struct Columnas_Punto {
    std::optional<std::size_t> nombre, x, y, z, codigo;

    /// By the fields' names, compared without case and accents; the elevation is "Coordenada Z" or
    /// "Coordenada Z / Cota".
    static Columnas_Punto De(const QStringList& campos);
    /// Name of the first coordinate without a column; empty when all three have one.
    QString Falta() const;
};
/// All field names that a drawing knows, as texts name them.
QStringList Campos_De_Punto();
/// A name with neither case nor accents, as names are compared.
QString Nombre_Llano(const QString& nombre);

/// Walks the points of a table in the order of its rows.
/// @return rows left out because a coordinate is empty or no number
/// @throws Error_Ejecucion 3265, naming it, when a coordinate has no column
qint64 Para_Cada_Punto(const Datos_Formateados& datos, Avance_Exportar& avance,
                       const std::function<void(const Punto_Medido&)>& hacer);

/// A drawing, from its first line to its last.
struct Dibujo_DXF {
    QByteArray bytes;
    qint64 omitidos = 0; ///< rows that could not be drawn
};
/// @throws Error_Ejecucion 3265 as `Para_Cada_Punto`
Dibujo_DXF Dibujar_Tabla(const Datos_Formateados& datos, Modo_DXF modo, const Ajustes_DXF& ajustes,
                         Avance_Exportar& avance);
