#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <variant>

/// Says where an installation and its database lie, without opening anything.
void Poner_Rutas(const QString& ruta);

/// Fills the global state at start-up: help file, database (made from the template when missing,
/// offered from its last copy when damaged, its delivered rows renewed), EstTotal.ini.
/// @return false when it failed: the message has been shown and the run must end
bool Cargar_Configuracion(const QString& ruta);

/// Reads the row of table `KRT` whose name is `valor` into `Formato_Coord` and `Vel_Puerto`; they
/// stay when there is none. Tells `Sucesos::estacion_cargada` in any case.
void Cargar_Estacion(const QString& valor);

/// What the settings dialog holds when it is accepted.
struct Ajustes {
    QString puerto, velocidad, bits, paridad, parada;
    QString nombre, clave;
    bool fijo = false;
    bool ayuda = false, recuerde = false, cargas = false, exportar = false, cabeceras = false;
};

/// A setting held as text. Without `valor` it is read and nothing more: writing takes it out of the
/// file.
struct Ajuste_Texto {
    QString* global;
    QString Ajustes::*valor;
};
/// A setting that is on or off: on exactly for the word `si`.
struct Ajuste_Marca {
    bool* global;
    bool Ajustes::*valor;
    const char *si, *no;
};
/// One setting: where it stands in EstTotal.ini, the global that holds it, and how the settings
/// dialog shows it.
struct Ajuste {
    const char *seccion, *clave;
    std::variant<Ajuste_Texto, Ajuste_Marca> lugar;
    const char* control = "";                ///< object name in `Frmutils`; empty: none
    const char16_t* rotulo = u"";            ///< what stands beside it
    const QStringList& (*lista)() = nullptr; ///< the entries of a combo that are always the same
};
/// All settings, in the order in which they are written and shown.
std::span<const Ajuste> Tabla_Ajustes();

/// Settings as they stand in the global state.
Ajustes Ajustes_Actuales();
/// Writes every key to EstTotal.ini, all at once, and copies it to its global; `HARD` is removed
/// from the file. Then `Sucesos::ajustes_guardados`. A failure shows its box. @return true when all
/// was written
bool Guardar_Configuracion(const Ajustes& ajustes);

/// The fixed lists of the settings dialog, in their order (the port list has its duplicate and
/// gap).
const QStringList& Lista_Puertos();
const QStringList& Lista_Bits();
const QStringList& Lista_Paridades();
const QStringList& Lista_Paradas();

/// Text of the status bar's first panel for the model in force.
QString Texto_Panel_Estacion();

/// Writes one key of section AYUDA at once ("Visible" or "Recuerde") and its global.
/// @param no  the text that switches it off: "No" for the step help, "NO" for the reminder
void Guardar_Aviso(const QString& clave, bool activo, const QString& no);
