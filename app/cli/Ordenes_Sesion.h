#pragma once

#include "app/cli/Ordenes.h"

/// Lists of what the database holds.
int Orden_Modelos(const Contexto& c, const QStringList& palabras);
int Orden_Operaciones(const Contexto& c, const QStringList& palabras);
int Orden_Sesiones(const Contexto& c, const QStringList& palabras);
int Orden_Formatos(const Contexto& c, const QStringList& palabras);
/// Lines of a session, as stored or, with --campos, decoded as the record viewer shows them.
int Orden_Ver(const Contexto& c, const QStringList& palabras);
/// Changes; a question of the program is answered by --si or refuses the order.
int Orden_Formato_Nuevo(const Contexto& c, const QStringList& palabras);
int Orden_Formato_Borrar(const Contexto& c, const QStringList& palabras);
int Orden_Borrar(const Contexto& c, const QStringList& palabras);
int Orden_Compactar(const Contexto& c, const QStringList& palabras);
/// Where the database lies and which copies of it there are; and one of them put in its place, the
/// newest sound one unless another is named. Both work while the database can't be opened.
int Orden_Base(const Contexto& c, const QStringList& palabras);
int Orden_Recuperar(const Contexto& c, const QStringList& palabras);
/// Exports a session through a format.
int Orden_Exportar(const Contexto& c, const QStringList& palabras);
