#pragma once

#include <QString>

/// "*.ang": point, horizontal angle, vertical angle, distance, target height and code of each
/// observation. @return as `Exportar_Disposicion`
bool Exportar_Angulos(qint64 id, const QString& ruta);

/// The report of a failure, which the raw offsets share.
QString Fallo_Angulos();
