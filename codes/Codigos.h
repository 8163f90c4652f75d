#pragma once

// The form: docs/formas/librerias.md

#include "codes/Librerias.h"

/// What a code may hold, and the form in which a library of series A keeps its codes.

/// The instruments of series A take so many codes of so many characters.
inline constexpr int MAX_CODIGOS = 50;
inline constexpr int LARGO_CODIGO = 10;

/// Codes of a stored list: items joined with code 6, the first one empty. Empty codes at the end
/// are filling of the wire and left out; those in between keep their place.
QStringList Separar_Codigos(const QString& codigos);
/// The stored list of some codes.
QString Unir_Codigos(const QStringList& codigos);

/// The codes alone, and bare codes as a library's.
QStringList Solo_Codigos(const Lista_De_Codigos& codigos);
Lista_De_Codigos Como_Libreria(const QStringList& codigos);

/// The first character that the instrument doesn't take (its code must be from 32 to 126); empty
/// when it takes all. A pair of surrogates is one character.
QString Caracter_No_Aceptado(const QString& texto);

/// Why a text can't be a code or a layer of the series; empty when it can.
QString Motivo_De_Texto(const Serie_Librerias& serie, const QString& texto);
/// Why the instrument wouldn't take a code; empty when it does. An empty code of series A is one.
/// @param entidades  indexes of the entities there are
QString Motivo_De_Codigo(const Serie_Librerias& serie, const Codigo_Libreria& codigo,
                         const QList<Entidad>& entidades);

/// Sorts by code, whatever its case; equal codes keep their order and empty ones go last.
void Ordenar_Codigos(Lista_De_Codigos& codigos);
/// The next code that holds a text, whatever its case.
/// @param desde  row from 0 at which the search begins; it goes on from the top
/// @return row from 0, or -1
int Buscar_Codigo(const Lista_De_Codigos& codigos, const QString& texto, int desde);
