#pragma once

#include "conversions/biblioteca/Tabla_Funciones.h"

#include <QIODevice>

/// The list file "$$$$.EJE", in which the list functions leave what a LandXML file offers and from
/// which the selection dialog reads it: at the root of drive C where that can be written, else in
/// the user's temporary folder.
QString Fichero_Lista();

/// Puts the list file elsewhere; an empty name puts it back.
void Mover_Fichero_Lista(const QString& ruta);

/// Lists a LandXML file into the list file (or the request's target, if it names one):
/// Windows-1252, CR LF, a choice a line. The file is always made, empty after a failure: the dialog
/// opens it without a test.
/// @return the number of lines
int Listar_En_Fichero(const Peticion_Funcion& peticion, Informe_Lectura& informe,
                      QStringList (*listar)(QIODevice&));
