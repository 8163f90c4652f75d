#pragma once

#include "conversions/biblioteca/Caminos.h"
#include "conversions/suelo/Informe_Lectura.h"
#include "core/Interfaz.h"

#include <QString>

/// The conversions that a dialog or a transfer starts, from the file dialogs to the closing box.

/// A file of another package to LandXML: asks for source and target, and the source's extension
/// picks the function. Cancel ends silently. `Puntos` has no such flow and does nothing.
void Convertir_A_LandXML(Clase_Conversion clase);

/// A blank or tab separated point file to the KRT point file.
void Convertir_Puntos();

/// Takes what the list functions left in the list file: its lines, the file being removed. A file
/// that can't be read gives no lines.
QStringList Tomar_Lista();

/// Text behind the last ".", upper case; the whole path, upper case, when it has none.
QString Extension_De(const QString& ruta);

/// Name that was chosen in a save dialog of filter `filtro`; one without extension takes that of
/// the chosen pattern, since the extension picks the form that is written.
QString Con_Extension(const Fichero_Elegido& elegido, const QString& filtro);

/// Shows what a reader left out, and why nothing was converted if so; nothing when there is nothing
/// to tell. The program's own box has been shown before.
void Mostrar_Omisiones(const Informe_Lectura& informe);
