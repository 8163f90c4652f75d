#include "export/Destino_Exportar.h"

#include "core/Ficheros.h"
#include "core/plataforma.h"

#include <algorithm>
#include <QFileInfo>

Destino_Exportar::Destino_Exportar(const QString& fichero) : objetivo(fichero), ruta(fichero)
{
    Ficheros::Comprobar_Destino(fichero);
    const QFileInfo donde(fichero);
    if (!donde.exists()) return;
    if (!donde.isWritable()) throw Error_Ejecucion::Con(70, fichero);
    // The file that a link leads to is replaced, and the link stays.
    objetivo = donde.canonicalFilePath();
    ruta = objetivo + ".parcial";
}

void Destino_Exportar::Terminar() const
{
    if (ruta != objetivo && !plataforma::Reemplazar(ruta, objetivo))
        throw Error_Ejecucion::Con(70, objetivo);
}

bool Es_Nombre_De_Fichero(const QString& ruta)
{
    const auto prohibido = [](QChar c) { return c < u' ' || c == u'*' || c == u'?'; };
    return !ruta.trimmed().isEmpty() && std::ranges::none_of(ruta, prohibido);
}
