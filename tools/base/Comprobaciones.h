#pragma once

#include "core/Familia.h"
#include "tools/base/Tablas.h"

#include <QSet>

/// Checks of the whole set, one group a subject. Each adds the faults that it finds and goes on.
/// `datos` is the folder that becomes the install directory; pictures are looked for in its
/// `bmphlp` and `bmphlp/ini`.
void Comprobar_Modelos(const Juego& juego, const QString& datos, QList<Falta>& faltas);
void Comprobar_Operaciones(const Juego& juego, QList<Falta>& faltas);
void Comprobar_Registros(const Juego& juego, QList<Falta>& faltas);
void Comprobar_Campos(const Juego& juego, QList<Falta>& faltas);
void Comprobar_Formatos(const Juego& juego, QList<Falta>& faltas);
void Comprobar_Ayudas(const Juego& juego, const QString& datos, QList<Falta>& faltas);
void Comprobar_Librerias(const Juego& juego, QList<Falta>& faltas);

/// Every check above.
void Comprobar_Todo(const Juego& juego, const QString& datos, QList<Falta>& faltas);

/// Family of a model, empty when there is no such model.
QString Familia_De(const Juego& juego, const QString& modelo);
/// @return true when the family offers the operation in that direction ("D", "C")
bool Ofrece(const Juego& juego, const QString& familia, int ope, const QString& tipo_ope);
/// Record identifiers of a family; of one operation when `ope` is not negative.
QStringList Registros_De(const Juego& juego, const QString& familia, int ope = -1);
/// Names of the fields of a record kind, in the order of the table.
QStringList Campos_De(const Juego& juego, const QString& familia, const QString& id);
