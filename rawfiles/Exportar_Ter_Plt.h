#pragma once

// The form: docs/formas/ficheros-brutos.md

#include <QString>

/// A session of series B as a CLIP file. With `patron` "*.ter" its rows "station,offset,height" are
/// regrouped into cross sections; with any other every line is copied as it is. A session without
/// lines makes no file. A failure is reported.
/// @return true on success
bool Exportar_Ter_Plt(qint64 id, const QString& ruta, const QString& patron);
