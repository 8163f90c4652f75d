#include "app/ventanas/Ventana_Convert.h"
#include "core/ModEstTotal.h"
#include "core/ui/Estilo.h"
#include "core/ui/Interfaz_Qt.h"
#include "session/Peticiones_Sesion.h"
#include "session/ui/FrmSelSep.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char** argv)
{
    QApplication aplicacion(argc, argv);
    Aplicar_Estilo(aplicacion);
    Ruta_Aplicacion = QCoreApplication::applicationDirPath();
    QApplication::setWindowIcon(QIcon(En_Instalacion("bmp/miraldos.png")));
    Interfaz_Qt interfaz;
    Interfaz* const anterior = Poner_Interfaz(&interfaz);
    Peticiones_De_Sesion().Pedir_Separador = Pedir_Separador;
    int estado = 0;
    {
        Ventana_Convert ventana;
        ventana.show();
        // A path with blanks may come in pieces, as who starts the viewer may write no quotes.
        const QString fichero = QCoreApplication::arguments().mid(1).join(u' ');
        if (!fichero.isEmpty()) ventana.Abrir(fichero);
        estado = QCoreApplication::exec();
    }
    Poner_Interfaz(anterior);
    return estado;
}
