// Makes the workbook template: a sheet whose first row names the columns and whose next rows are
// prepared for text.

#include "export/excel/Fichero_Excel.h"

#include "core/Error_Ejecucion.h"

#include <QCoreApplication>
#include <QSettings>

#include <cstdio>

namespace {

int Numero(const QSettings& descripcion, const QString& clave)
{
    bool bien = false;
    const int n = descripcion.value("plantilla/" + clave).toInt(&bien);
    if (!bien || n < 1) throw Error_Ejecucion(13, "plantilla.ini: " + clave);
    return n;
}

Libro_Excel Hacer_Plantilla(const QSettings& descripcion)
{
    const int columnas = Numero(descripcion, "columnas");
    const int filas = Numero(descripcion, "filas");
    const QString prefijo = descripcion.value("plantilla/prefijo").toString();
    Libro_Excel libro;
    Hoja_Excel& hoja = libro.Agregar_Hoja(descripcion.value("plantilla/hoja").toString());
    for (int c = 0; c < columnas; ++c)
        hoja.Poner(0, c, prefijo + QString::number(c + 1));
    hoja.Poner_Como_Texto({1, 0, filas, columnas - 1});
    return libro;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    if (argumentos.size() != 3) {
        std::fputs("usage: hacer_plantilla DESCRIPTION TARGET\n", stderr);
        return 2;
    }
    try {
        const QSettings descripcion(argumentos[1], QSettings::IniFormat);
        Guardar_Libro(Hacer_Plantilla(descripcion), argumentos[2], Version_Excel::Excel_8);
        return 0;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "hacer_plantilla: %s\n", e.what());
        return 1;
    }
}
