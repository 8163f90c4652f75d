#include "conversions/suelo/Destino.h"

#include "conversions/suelo/Informe_Lectura.h"
#include "core/Ficheros.h"

#include <QFile>
#include <QFileInfo>

namespace Destino {

void Guardar(const QString& ruta, const QByteArray& bytes)
{
    try {
        Ficheros::Escribir(ruta, bytes);
    } catch (const Error_Ejecucion& e) {
        throw Fallo_Conversion{
            "No se puede escribir el fichero de destino: " + e.descripcion, 0, {}};
    }
}

void Retirar(const QString& ruta)
{
    const QFileInfo info(ruta);
    if (!ruta.isEmpty() && info.isFile() && info.isWritable()) QFile::remove(ruta);
}

bool Mismo_Fichero(const QString& a, const QString& b)
{
    const QString ruta = QFileInfo(a).canonicalFilePath();
    return !ruta.isEmpty() && ruta == QFileInfo(b).canonicalFilePath();
}

} // namespace Destino
