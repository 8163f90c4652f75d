#pragma once

#include <QStringList>
#include <span>

/// A separator of fields: what the lists of the dialogs call it, its word on the command line, and
/// the character.
struct Fila_Separador {
    QString texto;    ///< entry of `Caracter` in `FrmExportar`
    QString pregunta; ///< entry of `FrmSelSep`
    QString palabra;  ///< on the command line
    QChar caracter;
};

/// All separators, in the order in which every list offers them.
std::span<const Fila_Separador> Separadores();
/// @return the index of a separator by its word, compared exactly; -1 for another word
int Indice_Separador(QStringView palabra);
/// The characters joined with code 6: the tag of a list of separators.
QString Tag_Separador();
