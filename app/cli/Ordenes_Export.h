#pragma once

#include "app/cli/Ordenes.h"

/// tabla: a separated text becomes a workbook or a database, a workbook's first sheet a text.
int Orden_Tabla(const Contexto& contexto, const QStringList& palabras);

/// The words of `exportar` for the help: its kinds and separators are those that there are.
QString Uso_Exportar();
