#include "app/ventanas/Visor_Ayuda.h"
#include "core/ui/Estilo.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char** argv)
{
    QApplication aplicacion(argc, argv);
    Aplicar_Estilo(aplicacion);
    QApplication::setWindowIcon(
        QIcon(QCoreApplication::applicationDirPath() + QStringLiteral("/bmp/miraldos.png")));
    Visor_Ayuda visor;
    // A path with blanks may come in pieces, as the line that starts the viewer has no quotes.
    const QString argumento = QCoreApplication::arguments().mid(1).join(u' ');
    visor.Abrir(argumento.isEmpty()
                    ? QCoreApplication::applicationDirPath() + QStringLiteral("/Ayuda/index.htm")
                    : Pagina_De_Argumento(argumento));
    visor.show();
    return QCoreApplication::exec();
}
