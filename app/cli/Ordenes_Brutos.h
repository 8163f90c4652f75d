#pragma once

#include "app/cli/Ordenes.h"

/// The words of the first.
QString Uso_Exportar_Bruto();
/// Sessions to raw and station files.
int Orden_Exportar_Bruto(const Contexto& c, const QStringList& palabras);
/// Raw files to sessions; prints the number of each.
int Orden_Importar_Bruto(const Contexto& c, const QStringList& palabras);
