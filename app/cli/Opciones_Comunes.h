#pragma once

#include "app/cli/Argumentos.h"

#include <optional>
#include <QStringList>

/// Options that several orders take, read in one way.

/// Words joined with commas and a last "o".
QString Enumerar(QStringList palabras);

/// Words of the separators, in the order of the lists.
QStringList Palabras_Separador();
/// --separador as an index into `Separadores()`; the first without the option.
/// @throws Error_Uso for another word
int Leer_Separador(const Argumentos& a);

/// --desplazamiento as the texts of the three boxes of `FrmOffset`.
/// @return nothing without the option. @throws Error_Uso for what can't be typed there
std::optional<QStringList> Leer_Desplazamiento(const Argumentos& a);

/// Makes --velocidad, or without it a speed of the model in force, the port's.
/// @throws Error_Uso for a speed that the model doesn't have
void Poner_Velocidad(const Argumentos& a);
