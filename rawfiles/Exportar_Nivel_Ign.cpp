#include "rawfiles/Exportar_Nivel_Ign.h"

#include "conversions/biblioteca/Flujo_Conversion.h"
#include "conversions/biblioteca/Tabla_Funciones.h"
#include "core/ModEstTotal.h"
#include "rawfiles/Exportar_Datos.h"
#include "rawfiles/Fichero_Destino.h"
#include "rawfiles/Peticiones_Rawfiles.h"

#include <QFile>

bool Exportar_Nivel_Ign(qint64 id, const QString& ruta)
{
    try {
        Fichero_Destino::Comprobar(ruta);
        const QString temporal = En_Instalacion(QStringLiteral("temp.$$$"));
        {
            const Cursor_De_Espera espera;
            // What an earlier run left is no session of today.
            QFile::remove(temporal);
            Copiar_Lineas(id, temporal);
        }
        const auto datos = Peticiones_De_Rawfiles().Pedir_Datos_IGN();
        if (!datos) return false;
        Informe_Lectura informe;
        const int hecho =
            Ejecutar_Funcion(u"anivel2ing", QStringList{temporal, ruta} + *datos, informe);
        if (hecho != 1) Interfaz_Actual().Mensaje(QStringLiteral("Formato no soportado"));
        Mostrar_Omisiones(informe);
        return hecho == 1;
    } catch (...) {
        Informe_Error(QStringLiteral("Se produjo un error al exportar a Fichero Bruto"),
                      Error_En_Curso());
        return false;
    }
}
