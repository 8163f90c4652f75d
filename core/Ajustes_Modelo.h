#pragma once

#include "core/Configuracion.h"

#include <map>
#include <optional>
#include <QString>
#include <QStringList>

// What the settings dialog and the model dialog show and do, without their controls.

/// A closed list and the entry shown: what a combo of the settings dialog holds.
struct Combo_Ajustes {
    QStringList lista;
    QString texto;
};

/// Controls of `Frmutils` after its load. The load ends early at a value that its list lacks; what
/// comes behind it then keeps its empty value.
struct Carga_Frmutils {
    std::map<QString, Combo_Ajustes> combos; ///< by the name of the control
    QString claves;                          ///< tag of `Combo6`: keys joined with code 6
    /// The marks of the check boxes alone. `Check2` to `Check6` are unticked when the load ended at
    /// an unknown model, so that accepting then saves them as "NO".
    Ajustes casillas;
    QString animacion; ///< file of the animated picture; empty: none
};

/// Fills the settings dialog from the global state and table KRT. A name that isn't in the table,
/// or a value that isn't in its list, shows its box and ends the load there.
Carga_Frmutils Cargar_Frmutils();

/// The speed list of `Combo1` from a comma list; a speed in force that isn't there gives the first.
Combo_Ajustes Lista_Velocidades(const QString& vel_puerto);
/// Another model is picked in `Combo6`. @return its speeds; nothing when the table lacks it
std::optional<Combo_Ajustes> Elegir_Modelo(const QString& nombre);

/// Accepts the settings dialog: model and key into the global state, the model's row read, the
/// others told (`Sucesos::modelo_cambiado`: picture, status panel, formats), everything written.
/// @param indice_modelo  place of the model in `Combo6`, from 0; the key is its token of `claves`
/// @return true when all was written; the dialog is unloaded in any case
bool Aceptar_Frmutils(Ajustes ajustes, const QString& claves, int indice_modelo);

/// The list of `FrmKRT`, in the table's own order (not by name, unlike `Combo6`).
struct Lista_FrmKRT {
    QStringList nombres; ///< entries of `List1`
    QStringList claves;  ///< family keys, same order
    QString fotos;       ///< tag of `List1`: pictures joined with code 6
};
Lista_FrmKRT Leer_Estaciones();
/// Picture below bmphlp of entry `indice` (from 0). @return empty when there is no such file
QString Foto_De_Entrada(const Lista_FrmKRT& lista, int indice);
/// Accepts `FrmKRT`: the choice holds for this run, nothing is written. Beeps without an entry.
/// @return true when the dialog is to be unloaded
bool Aceptar_FrmKRT(const Lista_FrmKRT& lista, int indice);

/// Picture below bmphlp/ini of the model whose name is `valor` (callers hand in the name or the
/// key, each what it has). @return empty when the row or the file is missing: the picture shown
/// stays
QString Cargar_Foto_Estacion(const QString& valor);
