#pragma once

#include "app/cli/Ordenes.h"

/// tabla: a separated text becomes a workbook or a database, a workbook's first sheet a text.
int Orden_Tabla(const Contexto& contexto, const QStringList& palabras);

/// dxf: a session becomes a drawing; dxf-fichero: a text list of points does.
int Orden_DXF(const Contexto& contexto, const QStringList& palabras);
int Orden_DXF_Fichero(const Contexto& contexto, const QStringList& palabras);
QString Uso_DXF();
QString Uso_DXF_Fichero();

/// imprimir: a session's page, as the preview's text or as a PDF file.
int Orden_Imprimir(const Contexto& contexto, const QStringList& palabras);
QString Uso_Imprimir();

/// plano: the points of a session as a sheet.
int Orden_Plano(const Contexto& contexto, const QStringList& palabras);

/// The words of `exportar` for the help: its kinds and separators are those that there are.
QString Uso_Exportar();
