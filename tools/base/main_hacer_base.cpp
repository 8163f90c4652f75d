#include "core/Error_Ejecucion.h"
#include "tools/base/Comprobaciones.h"
#include "tools/base/Escritura.h"

#include <QCoreApplication>

#include <cstdio>

// hacer_base DATOS FICHERO: makes the delivered database FICHERO from the tables of
// DATOS/DAT/tablas. Status 0 done, 1 faults in the tables (each on a line), 2 wrong usage.
int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList palabras = QCoreApplication::arguments();
    if (palabras.size() != 3) {
        std::fputs("Uso: hacer_base DATOS FICHERO\n", stderr);
        return 2;
    }
    QList<Falta> faltas;
    try {
        const Juego juego = Leer_Tablas(palabras[1] + QStringLiteral("/DAT/tablas"), faltas);
        Comprobar_Todo(juego, palabras[1], faltas);
        if (faltas.isEmpty()) Escribir_Base(juego, palabras[2], faltas);
    } catch (const Error_Ejecucion& e) {
        faltas << Falta{palabras[2], 0, QStringLiteral("(%1) %2").arg(e.numero).arg(e.descripcion)};
    }
    for (const Falta& f : faltas)
        std::fputs((f.Texto() + u'\n').toUtf8().constData(), stderr);
    return faltas.isEmpty() ? 0 : 1;
}
