#pragma once

#include "app/cli/Ordenes.h"

/// tabla: a separated text becomes a workbook or a database, a workbook's first sheet a text.
int Orden_Tabla(const Contexto& contexto, const QStringList& palabras);
