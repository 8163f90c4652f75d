#pragma once

#include "app/cli/Ordenes.h"

/// The code libraries of the two series: their list, and one library's codes.
int Orden_Librerias(const Contexto& c, const QStringList& palabras);
int Orden_Libreria_Ver(const Contexto& c, const QStringList& palabras);
/// A text file becomes a library; one of that name is replaced when the question is answered by
/// --si.
int Orden_Libreria_Guardar(const Contexto& c, const QStringList& palabras);
int Orden_Libreria_Exportar(const Contexto& c, const QStringList& palabras);
int Orden_Libreria_Borrar(const Contexto& c, const QStringList& palabras);
/// Sends a library to an instrument; prints what was sent, refused and repeated.
int Orden_Enviar_Libreria(const Contexto& c, const QStringList& palabras);
/// Receives a library into the database or a text file; prints its name.
int Orden_Recibir_Libreria(const Contexto& c, const QStringList& palabras);
