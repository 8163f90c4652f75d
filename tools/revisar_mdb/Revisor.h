#pragma once

#include <QByteArrayView>
#include <QStringList>

/// Walks a Jet 4 database (.mdb) of the form that the program writes, page by page, and lists what
/// is off: kinds and owners of pages, usage maps (every page belongs to exactly one structure),
/// definitions, rows, index entries, objects, rights and properties. Written from the facts of the
/// form and apart from the writer, so that the two check each other.
/// @return complaints in Spanish, one a line; none for a sound file
QStringList Revisar_Mdb(QByteArrayView fichero);
