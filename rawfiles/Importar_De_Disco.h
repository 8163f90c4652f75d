#pragma once

#include "core/ModEstTotal.h"
#include "rawfiles/Importar_Bruto.h"

/// What `FrmImpBru` shows and hands back.
struct Dialogo_Importar {
    Lista_Combo tipos; ///< `CbTipo`: the downloads of the family, their operations as the tag
    int tipo = 0;      ///< its chosen entry
    int opcion = 0;    ///< chosen `OptFor`: 0 machine, 1 and 2 lines
    QString fichero;   ///< `Text1`
    QString nombre;    ///< `Text2`; empty: the file's own, without extension
};

/// The dialog as it opens for the family in force.
Dialogo_Importar Abrir_Importar();
/// `BtnSel`. @return the chosen file; nothing when cancelled
std::optional<QString> Elegir_Bruto();

/// `BtnAce`: looks at the file, asks when it seems another family's, and imports it.
/// @return nothing when the dialog stays: no file, or the user thought better of it
std::optional<Importacion> Importar_De_Disco(const Dialogo_Importar& dialogo);

/// The import itself, by the family in force.
Importacion Importar_Por_Familia(const QString& fichero, const QString& nombre, int ope,
                                 Forma_Bruta forma);
/// Asks when the file doesn't look like one of the family in force. @return false when it stays out
bool Confirmar_Aspecto(const QByteArray& bytes, Forma_Bruta forma, int ope);
