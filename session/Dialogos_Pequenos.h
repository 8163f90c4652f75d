#pragma once

#include "session/Separadores.h"

#include <QList>
#include <QString>
#include <QStringList>

// What the small shared dialogs show.

/// Entries of `FrmSelSep`, in order.
QStringList Nombres_Separador();

/// A node of the tree of bad coordinates; `imagen` counts from 1 in the dialog's image list.
struct Nodo_Coordenada {
    QString texto;
    int imagen = 1;
    QList<Nodo_Coordenada> hijos;
};

/// The tree of `FrmErrCoord` for a list of bad points: the root, below it the points, below each
/// its three coordinates, those that overflow the instrument's field with an image of their own.
/// @param lista  points joined with code 6; name, X, Y and Z of each joined with code 5
Nodo_Coordenada Arbol_Coordenadas(const QString& lista);
