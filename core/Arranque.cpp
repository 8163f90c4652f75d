#include "core/Arranque.h"

#include "core/Configuracion.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Reloj.h"

#include <QDir>

namespace {
constexpr int PORTADA_MS = 3000;
}

bool Main(const QString& ruta, Ventanas_Arranque& ventanas)
{
    Ruta_Aplicacion = QDir::cleanPath(ruta);
    ventanas.Crear_Principal();
    if (!Cargar_Configuracion(Ruta_Aplicacion)) return false;
    ventanas.Puntero_De_Espera(true);
    const QString logo = Fichero_Logo(ventanas.Pantalla());
    if (FileExist(logo)) ventanas.Poner_Logo(logo);
    ventanas.Mostrar_Portada();
    Reloj_Actual().Dormir(PORTADA_MS);
    ventanas.Quitar_Portada();
    ventanas.Puntero_De_Espera(false);
    ventanas.Mostrar_Principal();
    Fichero_Log_Inicio = En_Instalacion(
        Basico::Formato_Fecha(Reloj_Actual().Ahora(), QStringLiteral("ddmmyy_hhmm")) +
        QStringLiteral(".LOG"));
    if (!Modelo_Fijo) ventanas.Pedir_Modelo();
    return true;
}

bool Es_Resolucion(const QSize& pantalla, int ancho, int alto)
{
    return pantalla == QSize(ancho, alto);
}

QString Fichero_Logo(const QSize& pantalla)
{
    return En_Instalacion(Es_Resolucion(pantalla, 640, 480) ? QStringLiteral("bmp/logo640.bmp")
                                                            : QStringLiteral("bmp/logo800.bmp"));
}
