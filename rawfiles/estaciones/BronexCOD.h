#pragma once

#include <QString>

/// "*.tpc": the observations with their codes, through the converter library. What is empty goes
/// there as "qtr" and stays so until a value comes.
/// @return true on success; the closing box is shown
bool Exportar_BronexCOD(qint64 id, const QString& ruta);
