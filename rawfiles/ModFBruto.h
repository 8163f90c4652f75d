#pragma once

// The form: docs/formas/ficheros-brutos.md

#include "session/Consultas_Sesion.h"

/// The file filter of a session: "descripción|patrón" pairs joined by "|". Families other than
/// those of frames offer the raw form besides what their operation lists.
/// @return null when the operation isn't known: the run is being ended, its box shown
QString Filtro_Bruto(const Sesion_Elegida& sesion);
/// The patterns of that filter, in their order.
QStringList Patrones_Brutos(const Sesion_Elegida& sesion);

/// "Guardar Como...": asks for the file until a name is given and writes the session in the form
/// of the chosen pattern. Cancel ends silently.
void Exportar_Fichero_Bruto(const Sesion_Elegida& sesion);

/// `ChkGenerales`: raw files of series A hold the general records too. Off until the user changes
/// it; kept in EstTotal.ini.
bool Incluir_Generales();
void Poner_Incluir_Generales(bool incluir);
