#include "tests/apoyo/Prueba.h"

std::vector<Prueba>& Pruebas()
{
    static std::vector<Prueba> lista;
    return lista;
}

int Ejecutar_Pruebas(const QStringList& argumentos)
{
    QStringList resto{argumentos.value(0)};
    QStringList nombres;
    for (const QString& a : argumentos.mid(1))
        (nombres.isEmpty() && !a.startsWith('-') && a.startsWith("Test") ? nombres : resto) << a;
    int fallos = 0;
    bool alguna = false;
    for (const Prueba& p : Pruebas())
        if (nombres.isEmpty() || nombres.contains(QLatin1String(p.nombre))) {
            alguna = true;
            fallos += p.ejecutar(resto);
        }
    if (!alguna) qCritical("No test class of that name");
    return alguna ? fallos : 1;
}
