#include "export/excel/Fichero_Excel.h"

#include "core/Ficheros.h"
#include "export/excel/Escritor_Biff.h"
#include "export/excel/Lector_Biff.h"

#include <QFileInfo>

// The name of a file may be longer than a sheet's and hold what that may not.
static QString Nombre_De_Hoja(const QString& fichero)
{
    const QString nombre = QFileInfo(fichero).completeBaseName();
    return Nombre_Hoja_Valido(nombre) ? nombre : QStringLiteral("hoja1");
}

Libro_Excel Abrir_Libro(const QString& fichero)
{
    return Leer_Libro(Ficheros::Leer(fichero), Nombre_De_Hoja(fichero));
}

void Guardar_Libro(const Libro_Excel& libro, const QString& fichero, Version_Excel version)
{
    Ficheros::Escribir(fichero, Escribir_Libro(libro, version));
}
