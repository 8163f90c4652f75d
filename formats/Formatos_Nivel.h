#pragma once

#include "formats/Campo_Nivel.h"
#include "formats/ModFormatos.h"

#include <array>

/// The formats of the level: their fields stand in two halves, head and detail, each an ordered
/// list of its own.

/// A field that a half offers.
struct Campo_Ofrecido {
    QString nombre;
    QString forsalida; ///< picture of its values; empty for one that is shown as it stands
};
QList<Campo_Ofrecido> Ofrecer_Mitad(Base& bd, const QString& maquina, Mitad_Nivel mitad);

/// Names of the fields of a half of a stored format, in order.
/// @throws Error_Ejecucion 3075 for a format's name with an apostrophe, here and below
QStringList Campos_Mitad(Base& bd, const QString& maquina, const QString& nombre,
                         Mitad_Nivel mitad);

/// The fields of both halves, by `Mitad_Nivel`.
using Campos_Nivel = std::array<QStringList, 2>;

/// Stores the fields of one half; the other stays.
void Guardar_Mitad(Base& bd, const QString& maquina, const QString& nombre, Mitad_Nivel mitad,
                   const QStringList& campos);
/// Stores a format with its two halves, whole or not at all; `formato.campos` counts for nothing.
/// @param nuevo  false: a format of the name exists and is replaced
/// @throws Error_Ejecucion 3022 when a new one exists already, in whatever capitals
void Guardar_Formato_Nivel(Base& bd, const Formato& formato, const Campos_Nivel& campos,
                           bool nuevo);
/// Changes description, titles and both halves of a stored format, whole or not at all.
/// @return false when the format has vanished
bool Cambiar_Formato_Nivel(Base& bd, const Formato& formato, const Campos_Nivel& campos);

/// The two halves while a dialog shows one of them in its lists.
class Dos_Mitades {
public:
    /// `CbEstructura`.
    Mitad_Nivel en_vista = Mitad_Nivel::Cabecera;

    /// Reads what each half offers and, of a stored format, what it has chosen.
    /// @param nombre  empty: nothing is chosen
    /// @param vista  gets the half in view
    void Leer(Base& bd, const QString& maquina, const QString& nombre, Dos_Listas& vista);
    /// Keeps the half in view and shows the other. @param vista  the lists of the dialog
    void Mostrar(Mitad_Nivel mitad, Dos_Listas& vista);
    /// What is chosen in both. @param vista  holds the half in view
    Campos_Nivel Elegidos(const Dos_Listas& vista) const;
    /// As an offered field is listed: its name and its picture.
    QString Rotulo(const QString& campo) const;

private:
    std::array<Dos_Listas, 2> listas;
    std::array<QList<Campo_Ofrecido>, 2> ofrecidos;
};
