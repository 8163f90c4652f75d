#pragma once

#include "export/Avance_Exportar.h"
#include "export/dxf/Ajustes_DXF.h"
#include "export/dxf/Lista_Puntos.h"
#include "export/dxf/ModDXF.h"
#include "formats/Peticiones_Formatos.h"

/// What becomes a drawing, and the file that it goes to.
struct Origen_Dibujo {
    /// The first pass: makes the table. Nothing when the user cancelled.
    std::function<std::optional<Lista_Puntos>(Avance_Exportar&)> leer;
    QString fichero;
    QStringList fuentes = {}; ///< files that it is made of
};
/// A session through the fields in force, as stage 1 of the exports formats it.
Origen_Dibujo Dibujo_De_Sesion(const Trabajo_Exportar& trabajo);
/// A text list of points. @param separador  nothing: by its titles, and asked for when none fits
Origen_Dibujo Dibujo_De_Texto(const QString& entrada, const QString& salida,
                              std::optional<QChar> separador = std::nullopt);

/// The two passes with their labels, and the closing box, which counts what was left out. An error
/// is reported; the file appears whole or stays as it was.
/// @return true when the drawing was written
bool Transformar_DXF(const Origen_Dibujo& origen, Modo_DXF modo, const Ajustes_DXF& ajustes,
                     Avance_Exportar& avance);
