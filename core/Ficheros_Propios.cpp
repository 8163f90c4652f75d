#include "core/Ficheros_Propios.h"

#include "core/ModEstTotal.h"

#include <algorithm>
#include <QDir>
#include <QFileInfo>

namespace {

// By pattern below the install directory: the settings, and all of the two folders of databases.
const QStringList CARPETAS = {"MDB", "DAT"};
const QStringList AJUSTES = {"EstTotal.ini", "Posicion.ini", "DXF.Ini", "Puertos.ini"};

// The file itself, whichever link or spelling of its folder led to it.
QString Verdadera(const QString& ruta)
{
    const QFileInfo fichero(ruta);
    if (fichero.exists()) return fichero.canonicalFilePath();
    const QString carpeta = QFileInfo(fichero.absolutePath()).canonicalFilePath();
    return carpeta.isEmpty() ? QDir::cleanPath(fichero.absoluteFilePath())
                             : carpeta + u'/' + fichero.fileName();
}

} // namespace

bool Es_Fichero_Propio(const QString& ruta)
{
    if (Ruta_Aplicacion.isEmpty()) return false;
    const QString raiz = Verdadera(Ruta_Aplicacion) + u'/', verdadera = Verdadera(ruta);
    if (!verdadera.startsWith(raiz, Qt::CaseInsensitive)) return false;
    const QString dentro = verdadera.sliced(raiz.size());
    return AJUSTES.contains(dentro, Qt::CaseInsensitive) ||
           std::ranges::any_of(CARPETAS, [&](const QString& carpeta) {
               return dentro.startsWith(carpeta + u'/', Qt::CaseInsensitive);
           });
}

void Comprobar_Destino(const QString& destino, const QStringList& fuentes)
{
    if (Es_Fichero_Propio(destino))
        throw Error_Ejecucion(70, "El fichero " + destino + " es del propio programa");
    for (const QString& fuente : fuentes)
        if (Verdadera(fuente) == Verdadera(destino))
            throw Error_Ejecucion(70, "El fichero " + destino + " es el de entrada");
}
