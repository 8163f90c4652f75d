#pragma once

#include "tools/base/Tablas.h"

/// Writes the tables into the new database `fichero`, which appears whole or not at all; one that
/// stands there is replaced.
/// @param sello  how new its rows are, for installations that have older ones; texts that sort in
///               the order of time
/// @param faltas  takes a fault for a row that the database refuses
/// @return true when every row was written
/// @throws Error_Ejecucion when the file can't be made
bool Escribir_Base(const Juego& juego, const QString& fichero, QList<Falta>& faltas,
                   const QString& sello = QStringLiteral("00000000000000"));
