#pragma once

#include "export/excel/Libro_Excel.h"

// How an export fills the delivered template, whatever the form it asks for:
//
//     QFile::copy(plantilla, fichero);
//     Libro_Excel libro = Abrir_Libro(fichero);
//     Tabla_Excel tabla(libro, "hoja1$");
//     tabla.MoveFirst();
//     if (tabla.Es_EOF()) tabla.AddNew(); else tabla.Edit();
//     tabla.Poner(0, texto);
//     tabla.Update();
//     if (!tabla.Es_EOF()) tabla.MoveNext();
//     Guardar_Libro(libro, fichero, Forma_De(conexion).version);

/// Opens the workbook of a file of any form that `Leer_Libro` knows. The sheet of a plain file is
/// called after the file.
/// @throws Error_Ejecucion 3274 when it is no workbook or damaged; those of Ficheros::Leer
Libro_Excel Abrir_Libro(const QString& fichero);

/// Writes the workbook to a file, whole or not at all.
/// @throws Error_Ejecucion those of Libro_Excel::Comprobar and Ficheros::Escribir
void Guardar_Libro(const Libro_Excel& libro, const QString& fichero, Version_Excel version);
