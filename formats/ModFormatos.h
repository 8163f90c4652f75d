#pragma once

// The form: docs/formas/textos.md

#include "core/ModEstTotal.h"
#include "formats/Dos_Listas.h"
#include "session/Consultas_Sesion.h"

#include <optional>
#include <QString>
#include <QStringList>

/// Export formats: named, ordered lists of fields, kept per family for one operation. What the
/// format dialogs and the export engine share.

/// The fields of the export under way: 257 slots, unused ones empty; the list ends at the first
/// empty one. Filled when a format dialog is accepted, read by the engine.
extern QStringList Campos_Exportar;
inline constexpr int MAX_CAMPOS = 257;
/// The export begins with the column titles.
extern bool Incluir_Cabeceras;

/// Clears all slots and fills the first ones.
/// @throws Error_Ejecucion 9 for more names than slots; the slots are then full
void Poner_Campos_Exportar(const QStringList& campos);

/// Fills `datosexport` with the identifiers that a session's lines hold, apostrophes doubled.
/// Operation 4 has the one identifier "Punto" whatever its lines hold.
/// @param formato_nuevo  a new format is made: operation 7 then has the one identifier "Per.Trans"
/// @throws Error_Ejecucion 9 for more than 31 different identifiers
void Sacar_IDs(Base& bd, const Sesion_Elegida& sesion, bool formato_nuevo);
/// The same for a format made without a session: the record kinds of the operation, the first 31.
void Sacar_Ids_Nuevo(Base& bd, const QString& maquina, int ope);
/// The same from the identifiers of a stored format, for its maintenance.
void Rellenar_IDs(const QString& ids, int ope);

/// @return true if `id` equals one of the slots of `datosexport`: an empty one while a slot is free
bool esta_en_datosexport(const QString& id);
/// @return true when the identifiers of a format (`Formatos1.Ids`) name one missing from
/// `datosexport`
bool Comprobar_IDs(const QString& ids, int ope);
/// The warning for such a format; it is no failure.
QString Aviso_Campos(const QString& formato);

/// All slots of `datosexport`, the empty ones too, for an SQL IN: "'a' ,'b' ,'' ".
QString Lista_Ids_SQL();
/// The text stored in `Formatos1.Ids`.
QString Cadena_Ids(int ope);

/// Raises the flag of the axis that a field is the coordinate of; never clears one.
void Comprobar_Marcas_Coordenadas(Base& bd, const QString& maquina, const QString& campo,
                                  bool& hay_x, bool& hay_y, bool& hay_z);

/// Which general fields are offered beside those of the records.
enum class Generales { De_La_Familia, De_La_Operacion };
/// Offers the fields of the records in `datosexport` that are not barred from listing, each once in
/// the order of the table, and the general fields. "Punto" belongs to the families that keep the
/// point's name beside the line.
/// @param punto_primero  "Punto" stands ahead of the fields instead of behind those of the records
/// @param ope  operation, for `Generales::De_La_Operacion`
void Ofrecer_Campos(Base& bd, const QString& maquina, Dos_Listas& listas, bool punto_primero,
                    Generales generales, int ope);

/// A row of `Formatos1` with its fields.
struct Formato {
    QString nombre, maquina, descripcion, ids;
    bool cabeceras = false, modificable = false;
    int ope = 0;
    QStringList campos; ///< as stored: those of the level carry their mark
};

/// Names of a family's formats; with `ope` only those of the operation. In insertion order.
QStringList Nombres_Formatos(Base& bd, const QString& maquina, std::optional<int> ope = {});
/// The header of a format, without its fields; nothing when there is none of the name.
std::optional<Formato> Buscar_Formato(Base& bd, const QString& maquina, const QString& nombre);
/// The fields of a format, in order.
QStringList Campos_Formato(Base& bd, const QString& maquina, const QString& nombre);

/// Stores a format and its fields, whole or not at all.
/// @param nuevo  false: a format of the name exists and is replaced
/// @throws Error_Ejecucion 3022 when a new one exists already
void Guardar_Formato(Base& bd, const Formato& formato, bool nuevo);
/// Changes description, titles and fields of a stored format, whole or not at all.
/// @return false when the format has vanished
bool Cambiar_Formato(Base& bd, const Formato& formato);
/// Asks, then deletes a format; one that has vanished is no error. @return false when refused
bool Eliminar_Formato(Base& bd, const QString& maquina, const QString& nombre);
