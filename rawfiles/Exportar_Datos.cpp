#include "rawfiles/Exportar_Datos.h"

#include "core/ModEstTotal.h"
#include "rawfiles/Fichero_Destino.h"
#include "rawfiles/Lineas_Sesion.h"

namespace {

bool Copiar_O_Decir(qint64 id, const QString& ruta, const QString& mensaje)
{
    const Cursor_De_Espera espera;
    try {
        Copiar_Lineas(id, ruta);
        return true;
    } catch (...) {
        Informe_Error(mensaje, Error_En_Curso());
        return false;
    }
}

} // namespace

void Copiar_Lineas(qint64 id, const QString& ruta)
{
    Lineas_Sesion lineas(id);
    if (!lineas.Siguiente()) return;
    Fichero_Destino destino(ruta);
    do
        destino.Linea(lineas.Datos());
    while (lineas.Siguiente());
    destino.Terminar();
}

bool Exportar_Datos(qint64 id, const QString& ruta)
{
    return Copiar_O_Decir(id, ruta,
                          QStringLiteral("Se produjo un error al exportar a Fichero Bruto"));
}

bool Exportar_Datos_Modo(qint64 id, const QString& ruta, int modo)
{
    return modo != 1 ||
           Copiar_O_Decir(id, ruta,
                          QStringLiteral("Se produjo un error al exportar el Fichero en Bruto"));
}
