#pragma once

#include "session/Consultas_Sesion.h"

class QTableWidget;

/// A read-only grid of two columns.
QTableWidget* Hacer_Rejilla(const QString& nombre);
/// Puts headers and lines into it.
void Poner_Lineas(QTableWidget& rejilla, const QString& titulo1, const QString& titulo2,
                  const QList<Linea_Rejilla>& lineas);
