#pragma once

#include "core/Familia.h"
#include "export/Tarea_Exportar.h"
#include "formats/Peticiones_Formatos.h"

/// The ways out of a session, one const row each. The dialog, its file filter, the engine, the
/// command line and the tests walk this table: a new output is a writer in its room, a row here and
/// a golden file under `tests/datos/export` whose name begins with the row's word ("nivel_" before
/// it for a writer of the level).

/// Opens the dialog that an output has of its own; empty while there is none.
using Abrir_Salida = std::function<void(const Trabajo_Exportar&)>;

/// One way out. What can't be done yet has null in place of its writer or an empty dialog, and is
/// barred everywhere.
struct Salida_Exportar {
    QString tipo;    ///< its kind for the engine, compared without case
    QString palabra; ///< its word on the command line; empty: not offered there
    int opcion = -1; ///< index of its `OptFor`; -1: none
    QString rotulo;  ///< text of its `OptFor`
    QString etiqueta = {}, extension = {}; ///< of its files, in the file dialog
    QStringList formatos = {};             ///< names of the only formats it takes; empty: any
    bool pide_separador = false; ///< shows `Caracter`; options of the form `Opciones_Texto`
    /// Shows `VersionExcel` and `ChkNumeros`; options of the form `Opciones_Libro`.
    bool pide_version = false;
    bool se_muestra = false; ///< the viewer opens on the file, however it ended
    Escritor escribir = nullptr;
    Escritor escribir_nivel = nullptr;          ///< the same with the level in force
    const Abrir_Salida& (*dialogo)() = nullptr; ///< in place of the two writers
};
/// All of them, those with an `OptFor` first and in the order of their indexes.
const QList<Salida_Exportar>& Salidas_Exportar();
/// @return the row of that kind, or null
const Salida_Exportar* Salida_De(const QString& tipo);
/// @return the row of that `OptFor`, or null
const Salida_Exportar* Salida_De_Opcion(int opcion);
/// The rows whose word the command line takes: those that some family can write.
QList<const Salida_Exportar*> Salidas_Por_Palabra();

/// What a family decides, while it is in force, for every session that goes out.
struct Modo_Salida {
    Serie serie;
    Etapa_Uno formatear;
    Escritor Salida_Exportar::*escritor; ///< which of a row's writers
    bool campos_con_marca;               ///< `Tarea_Exportar::campos_con_marca`
    bool letra_fija;                     ///< the viewer shows the text in its fixed-pitch font
};
const Modo_Salida& Modo_De(Serie serie);
/// The one place where the model in force decides how sessions go out, of whatever family they are:
/// a format is chosen among those of the family in force, and it is what has to fit. Stage 1 looks
/// at the session's own family for its lines.
const Modo_Salida& Modo_En_Vigor();

/// @return the writer of that kind for the family in force, or null
Escritor Escritor_De(const QString& tipo);
/// @return true when the output can be chosen for a format with the family in force
bool Se_Ofrece(const Salida_Exportar& salida, const QString& formato);
